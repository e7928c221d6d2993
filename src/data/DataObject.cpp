#include "data/DataObject.h"

#include "core/Conversions.h"
#include "core/Rounding.h"
#include "data/Statement.h"

namespace norvane {

DataObject::DataObject(Workspace& workspace)
    : workspace_(workspace), connection_(workspace.engine), recordset_(std::make_shared<Recordset>()) {}

void DataObject::InitAccess(const std::filesystem::path& database) {
  connectionString_ = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source = \"" + database.string() +
                      "\" ;Mode=Read|Write|Share Deny None;Persist Security Info=False";
}

void DataObject::Init(const std::string& userId, const std::string& password, const std::string& database,
                      const std::string& server) {
  connectionString_ =
      "Provider=SQLOLEDB;uid=" + userId + ";pwd=" + password + ";database=" + database + ";server=" + server + ";";
}

void DataObject::OpenCn() {
  if (connection_.State() != 0) return;
  IgnoringErrors([&] { connection_.ConnectionString = connectionString_; },
                 [&] { connection_.CursorLocation = CursorLocation::Client; }, [&] { connection_.Open(); });
}

void DataObject::CloseCn() {
  if (connection_.State() != 1) return;
  IgnoringErrors([&] { connection_.Close(); });
}

Object<Recordset> DataObject::Detached(std::string_view statement) {
  recordset_ = std::make_shared<Recordset>();
  recordset_->SetActiveConnection(&connection_);
  recordset_->CursorLocation = CursorLocation::Client;
  recordset_->CursorType = CursorType::ForwardOnly;
  recordset_->Source = statement;
  recordset_->Open();
  recordset_->SetActiveConnection(nullptr);
  return recordset_;
}

Object<Recordset> DataObject::List(std::string_view label, std::string_view statement) {
  return Result(label, [&] { return Detached(statement); });
}

std::unique_ptr<Recordset> DataObject::Read(std::string_view statement) {
  auto rows = std::make_unique<Recordset>();
  rows->Open(statement, connection_, CursorType::ForwardOnly, LockType::ReadOnly);
  return rows;
}

std::unique_ptr<Recordset> DataObject::ReadToUpdate(std::string_view statement) {
  auto rows = std::make_unique<Recordset>();
  rows->Open(statement, connection_, CursorType::Dynamic, LockType::Optimistic);
  return rows;
}

void DataObject::Run(std::string_view statement) {
  Recordset().Open(statement, connection_, CursorType::Dynamic, LockType::Optimistic);
}

void DataObject::Replace(std::string_view deletion, std::string_view insertion) {
  Run(deletion);
  Run(insertion);
}

std::int32_t DataObject::NextKey(const NumberedTable& table) {
  const auto rows = Read(sql::Statement("select max(", table.key, ") as HighNum from ", table.name));
  std::int32_t key = rows->IsNull("highnum") ? table.base : rows->Long("highnum");
  do {
    key = RoundToLong(key + 1.0);
  } while (workspace_.numbersInUse.contains({std::string(table.name), key}));
  return key;
}

void DataObject::RunProcedure(std::string_view name, std::initializer_list<Parameter> parameters) {
  Command command;
  command.SetActiveConnection(&connection_);
  command.CommandText = name;
  command.CommandType = CommandType::StoredProcedure;
  for (const Parameter& each : parameters) command.AppendParameter(each.name, each.type, each.size);
  for (const Parameter& each : parameters) command.Parameters(each.name).Value = each.Value;
  command.Execute();
}

std::string RequiredText(const Recordset& rows, std::string_view field) {
  if (rows.IsNull(field)) Raise(ErrorNumber::InvalidUseOfNull);
  return rows.Text(field);
}

Currency SumOrZero(const Recordset& rows, std::string_view field) {
  return rows.IsNull(field) ? Currency() : rows.Currency(field);
}

}  // namespace norvane
