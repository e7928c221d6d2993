#include "store/Recordset.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

#include "core/UnitedStates.h"
#include "core/Utf8.h"
#include "store/internal/RowOrder.h"
#include "store/internal/Rows.h"
#include "store/internal/Session.h"
#include "store/internal/StoreError.h"

namespace norvane {
namespace {

/// A value as a field of that type holds it. Raises 13 or 6 if it does not fit.
Value ConvertedTo(FieldType type, const Value& value) {
  const Conversions& convert = UnitedStates();
  if (IsNull(value)) return value;
  switch (type) {
    case FieldType::Long:
      return convert.ToLong(value);
    case FieldType::Double:
      return convert.ToDouble(value);
    case FieldType::Currency:
      return convert.ToCurrency(value);
    case FieldType::Date:
      return convert.ToDate(value);
    case FieldType::Boolean:
      return convert.ToBoolean(value);
    case FieldType::Text:
      break;
  }
  return convert.ToText(value);
}

}  // namespace

struct Recordset::State_ {
  Connection* connection = nullptr;
  LockType lock = LockType::ReadOnly;

  /// The fields appended so far, until the fabricated recordset is opened.
  std::vector<ResultColumn> appended;
  bool fabricated = false;

  std::shared_ptr<store::Rows> rows;                      ///< shared with clones; nothing while closed
  std::shared_ptr<const store::Translation> translation;  ///< where the rows came from
  std::vector<std::uint32_t> places;  ///< the rows in their order; empty while that is the rows' own
  std::size_t position = 0;

  /// What was set since AddNew or since the move to this row, by column.
  std::vector<std::optional<Value>> edits;
  bool adding = false;

  store::Rows& Opened() {
    if (!rows) throw store::error::ObjectClosed();
    return *rows;
  }
  const store::Rows& Opened() const { return const_cast<State_*>(this)->Opened(); }

  std::size_t Count() const { return places.empty() ? Opened().Count() : places.size(); }

  /// The current row's number. Raises 3021 without one.
  std::size_t Row() const {
    if (position >= Count()) throw store::error::NoCurrentRecord();
    return places.empty() ? position : places[position];
  }

  int ColumnOf(std::string_view name) const {
    const int column = Opened().Find(name);
    if (column < 0) throw store::error::ItemNotFound();
    return column;
  }

  void MoveTo(std::size_t place) {
    position = place;
    edits.clear();
    adding = false;
  }

  void Begin(std::shared_ptr<store::Rows> newRows) {
    rows = std::move(newRows);
    places.clear();
    MoveTo(0);
  }

  const Value* Edited(int column) const {
    if (edits.empty()) return nullptr;
    return edits[column] ? &*edits[column] : nullptr;
  }

  Value Read(int column) const {
    if (const Value* edited = Edited(column)) return *edited;
    if (adding) return Null{};
    return rows->Get(Row(), column);
  }

  /// A field that must not be Null. Raises 94 if it is.
  Value ReadFilled(std::string_view name) const {
    Value value = Read(ColumnOf(name));
    if (norvane::IsNull(value)) Raise(ErrorNumber::InvalidUseOfNull);
    return value;
  }

  bool IsTableBacked() const { return connection && !fabricated && lock != LockType::ReadOnly; }

  std::vector<store::Session::Cell> EditedCells() const {
    std::vector<store::Session::Cell> cells;
    for (std::size_t i = 0; i < edits.size(); ++i) {
      if (edits[i]) cells.push_back({translation->tableColumns[i], *edits[i]});
    }
    return cells;
  }

  void WriteToTable() const {
    if (translation->table.empty()) throw store::error::NotUpdatable();
    if (adding) return connection->Use().InsertRow(translation->table, EditedCells());
    std::vector<store::Session::Cell> key;
    for (const std::size_t column : translation->key) {
      key.push_back({translation->tableColumns[column], rows->Get(Row(), static_cast<int>(column))});
    }
    if (key.empty()) throw store::error::NotUpdatable();
    connection->Use().UpdateRow(translation->table, EditedCells(), key);
  }

  void AppendRow() {
    rows->AppendEmpty();
    if (!places.empty()) places.push_back(static_cast<std::uint32_t>(rows->Count() - 1));
    position = Count() - 1;
  }
};

Recordset::Recordset() : state_(std::make_unique<State_>()) {}
Recordset::~Recordset() = default;

void Recordset::SetActiveConnection(Connection* connection) {
  state_->connection = connection;
}

void Recordset::Open(std::string_view source, Connection& connection, norvane::CursorType cursorType,
                     LockType lockType) {
  if (state_->rows) throw store::error::ObjectOpen();
  CursorType = cursorType;
  state_->connection = &connection;
  state_->lock = lockType;
  state_->fabricated = false;
  store::Session::Outcome outcome = connection.Use().Run(source);
  state_->translation = std::move(outcome.translation);
  if (outcome.rows) state_->Begin(std::move(outcome.rows));
}

void Recordset::Open() {
  if (state_->rows) throw store::error::ObjectOpen();
  if (!state_->connection) throw store::error::ConnectionInvalid();
  Open(Source, *state_->connection, CursorType, LockType::ReadOnly);
}

void Recordset::Close() {
  state_->Opened();
  state_->Begin(nullptr);
}

int Recordset::State() const {
  return state_->rows ? 1 : 0;
}

bool Recordset::Eof() const {
  return state_->position >= state_->Count();
}

std::int32_t Recordset::RecordCount() const {
  return state_->rows ? static_cast<std::int32_t>(state_->Count()) : 0;
}

void Recordset::MoveFirst() {
  if (state_->Count() == 0) throw store::error::NoCurrentRecord();
  state_->MoveTo(0);
}

void Recordset::MoveNext() {
  if (Eof()) throw store::error::NoCurrentRecord();
  state_->MoveTo(state_->position + 1);
}

std::shared_ptr<Recordset> Recordset::Clone() const {
  state_->Opened();
  auto clone = std::make_shared<Recordset>();
  State_& other = *clone->state_;
  other.connection = state_->connection;
  other.lock = state_->lock;
  other.fabricated = state_->fabricated;
  other.rows = state_->rows;
  other.translation = state_->translation;
  other.places = state_->places;
  return clone;
}

void Recordset::Sort(std::string_view order) {
  std::vector<std::uint32_t> places = state_->places;
  if (places.empty()) {
    places.resize(state_->Opened().Count());
    std::iota(places.begin(), places.end(), 0U);
  }
  store::SortRows(*state_->rows, order, places);
  state_->places = std::move(places);
  state_->MoveTo(0);
}

int Recordset::FieldCount() const {
  return static_cast<int>(state_->Opened().Columns().size());
}

std::string Recordset::FieldName(int index) const {
  if (index < 0 || index >= FieldCount()) throw store::error::ItemNotFound();
  return state_->rows->Columns()[index].name;
}

FieldType Recordset::FieldTypeOf(int index) const {
  if (index < 0 || index >= FieldCount()) throw store::error::ItemNotFound();
  return state_->rows->Columns()[index].type;
}

Value Recordset::Field(std::string_view name) const {
  return state_->Read(state_->ColumnOf(name));
}

Value Recordset::Field(int index) const {
  if (index < 0 || index >= FieldCount()) throw store::error::ItemNotFound();
  return state_->Read(index);
}

bool Recordset::IsNull(std::string_view name) const {
  const int column = state_->ColumnOf(name);
  if (state_->adding || state_->Edited(column)) return norvane::IsNull(state_->Read(column));
  return state_->rows->IsNull(state_->Row(), column);
}

std::string Recordset::Text(std::string_view name) const {
  const int column = state_->ColumnOf(name);
  const bool plain =
      !state_->adding && !state_->Edited(column) && state_->rows->Columns()[column].type == FieldType::Text;
  if (plain) return std::string(state_->rows->Text(state_->Row(), column));
  return UnitedStates().ToText(state_->Read(column));
}

std::int32_t Recordset::Long(std::string_view name) const {
  return UnitedStates().ToLong(state_->ReadFilled(name));
}
double Recordset::Double(std::string_view name) const {
  return UnitedStates().ToDouble(state_->ReadFilled(name));
}
Currency Recordset::Currency(std::string_view name) const {
  return UnitedStates().ToCurrency(state_->ReadFilled(name));
}
Date Recordset::Date(std::string_view name) const {
  return UnitedStates().ToDate(state_->ReadFilled(name));
}
bool Recordset::Boolean(std::string_view name) const {
  return UnitedStates().ToBoolean(state_->ReadFilled(name));
}

void Recordset::AppendField(std::string_view name, FieldType type, int size) {
  if (state_->rows) throw store::error::ObjectOpen();
  state_->appended.push_back({std::string(name), type, size});
}

void Recordset::OpenFabricated() {
  if (state_->rows) throw store::error::ObjectOpen();
  state_->fabricated = true;
  state_->Begin(std::make_shared<store::Rows>(state_->appended));
}

void Recordset::AddNew() {
  state_->Opened();
  state_->edits.assign(FieldCount(), std::nullopt);
  state_->adding = true;
}

void Recordset::SetField(std::string_view name, const Value& value) {
  const int column = state_->ColumnOf(name);
  if (!state_->adding) state_->Row();
  const ResultColumn& field = state_->rows->Columns()[column];
  Value converted = ConvertedTo(field.type, value);
  if (state_->fabricated && norvane::IsNull(converted)) throw store::error::MultipleStep();
  const auto* text = std::get_if<std::string>(&converted);
  if (text && field.size > 0 && CharacterCount(*text) > static_cast<std::size_t>(field.size)) {
    throw store::error::MultipleStep();
  }
  if (state_->edits.empty()) state_->edits.resize(FieldCount());
  state_->edits[column] = std::move(converted);
}

void Recordset::Update() {
  state_->Opened();
  if (!state_->adding) state_->Row();
  if (state_->edits.empty()) return;
  if (state_->IsTableBacked() && !state_->EditedCells().empty()) state_->WriteToTable();
  if (state_->adding) state_->AppendRow();
  state_->rows->Change(state_->Row(), state_->edits);
  state_->edits.clear();
  state_->adding = false;
}

bool IsOpen(const std::shared_ptr<Recordset>& recordset) {
  return recordset && recordset->State() == 1;
}

}  // namespace norvane
