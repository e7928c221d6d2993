#include "store/internal/Session.h"

#include <sys/stat.h>

#include "core/Characters.h"
#include "core/FileSystem.h"
#include "core/WholeFile.h"
#include "store/internal/Binder.h"
#include "store/internal/Parser.h"
#include "store/internal/SqlFunctions.h"
#include "store/internal/SqlWriting.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

constexpr std::size_t kMostPrepared = 64;
constexpr std::size_t kMostTranslations = 1000;

/// The mode's write bits count for every user, so a file that was made read-only is not written by root either.
bool MayBeWritten(mode_t mode) {
  return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

/// The file's mode. Raises the reason if it can't be a database.
mode_t Checked(const std::filesystem::path& file, const std::string& name) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) throw error::FileNotFound(name);
  if (status.st_size == 0) throw error::UnrecognizedFormat(name);
  return status.st_mode;
}

DatabaseHandle OpenDatabase(const std::filesystem::path& file, mode_t mode, const std::string& name,
                            std::chrono::milliseconds patience) {
  const int flags = (MayBeWritten(mode) ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) | SQLITE_OPEN_NOMUTEX;
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &opened, flags, nullptr);
  DatabaseHandle database(opened);
  if (code != SQLITE_OK) throw error::FileInUse(name);
  sqlite3_busy_timeout(opened, static_cast<int>(patience.count()));
  return database;
}

/// Leaves a statement ready for its next run however this one ended.
class Reset {
 public:
  explicit Reset(sqlite3_stmt* statement) : statement_(statement) {}
  ~Reset() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }
  Reset(const Reset&) = delete;
  Reset& operator=(const Reset&) = delete;

 private:
  sqlite3_stmt* statement_;
};

}  // namespace

Session::Session(EngineState& engine, const std::filesystem::path& file) : engine_(engine), name_(file.string()) {
  const std::filesystem::path located = std::filesystem::absolute(Located(file));
  const mode_t mode = Checked(located, name_);
  folder_ = located.parent_path();
  participation_.emplace(engine_, located, name_);
  database_ = OpenDatabase(located, mode, name_, engine_.patience);
  const std::int32_t version = SchemaVersion();
  std::shared_ptr<FileKnowledge>& known = participation_->File().knowledge;
  if (!known || known->schemaVersion != version) {
    known = std::make_shared<FileKnowledge>(FileKnowledge{version, Catalog::Read(database_.get(), name_), {}});
  }
  knowledge_ = known;
  AddSqlFunctions(database_.get());
}

// The folder is synchronised after the last journal is gone: one that comes back with a power cut would undo what was
// saved. That this may fail where a folder can't be synchronised is no error of the save.
Session::~Session() {
  const bool wrote = sqlite3_total_changes(database_.get()) > 0;
  prepared_.clear();
  database_.reset();
  if (wrote) SynchronizeFolder(folder_);
}

/// The first thing read from the file: raises the reason if it is no database or another program holds it.
std::int32_t Session::SchemaVersion() {
  const StatementHandle version = Prepare(database_.get(), "pragma schema_version", name_);
  Step(version.get(), name_);
  return sqlite3_column_int(version.get(), 0);
}

Session::Outcome Session::Run(std::string_view statement) {
  const Lexed lexed = Lex(statement);
  Outcome outcome{TranslationOf(lexed, statement), nullptr};
  const Translation& translation = *outcome.translation;
  sqlite3_stmt* prepared = StatementOf(outcome.translation);
  const Reset reset(prepared);
  BindLiterals(prepared, translation.bindings, lexed.literals);
  if (translation.columns.empty()) {
    Step(prepared, name_);
    if (translation.mustChange && sqlite3_changes(database_.get()) == 0) throw error::DuplicateKey();
    return outcome;
  }
  outcome.rows = std::make_shared<Rows>(translation.columns);
  while (Step(prepared, name_)) outcome.rows->Read(prepared);
  outcome.rows->Trim();
  return outcome;
}

std::shared_ptr<const Translation> Session::TranslationOf(const Lexed& lexed, std::string_view statement) {
  auto& translations = knowledge_->translations;
  if (const auto found = translations.find(lexed.fingerprint); found != translations.end()) return found->second;
  const syntax::Statement tree = Parse(lexed, statement);
  auto translation = std::make_shared<const Translation>(Translate(tree, lexed, knowledge_->catalog));
  if (translations.size() >= kMostTranslations) translations.clear();
  return translations[lexed.fingerprint] = std::move(translation);
}

sqlite3_stmt* Session::StatementOf(const std::shared_ptr<const Translation>& translation) {
  if (const auto found = prepared_.find(translation.get()); found != prepared_.end()) {
    return found->second.statement.get();
  }
  StatementHandle statement = Prepare(database_.get(), translation->sql, name_);
  if (prepared_.size() >= kMostPrepared) prepared_.clear();
  return (prepared_[translation.get()] = {translation, std::move(statement)}).statement.get();
}

void Session::UpdateRow(const std::string& table, const std::vector<Cell>& cells, const std::vector<Cell>& key) {
  std::string sql = Concat({"UPDATE ", QuotedName(table)});
  for (std::size_t i = 0; i < cells.size(); ++i) {
    sql += Concat({i == 0 ? " SET " : ", ", QuotedName(cells[i].column), " = ?"});
  }
  for (std::size_t i = 0; i < key.size(); ++i) {
    sql += Concat({i == 0 ? " WHERE " : " AND ", QuotedName(key[i].column), " = ?"});
  }
  RunWithValues(sql, cells, key);
  if (sqlite3_changes(database_.get()) == 0) throw error::RowIsGone();
}

void Session::InsertRow(const std::string& table, const std::vector<Cell>& cells) {
  std::string columns;
  std::string values;
  for (const Cell& cell : cells) {
    columns += Concat({columns.empty() ? "" : ", ", QuotedName(cell.column)});
    values += values.empty() ? "?" : ", ?";
  }
  RunWithValues(Concat({"INSERT INTO ", QuotedName(table), " (", columns, ") VALUES (", values, ")"}), cells, {});
}

void Session::RunWithValues(const std::string& sql, const std::vector<Cell>& first, const std::vector<Cell>& second) {
  const StatementHandle statement = Prepare(database_.get(), sql, name_);
  int parameter = 0;
  for (const Cell& cell : first) BindValue(statement.get(), ++parameter, cell.value);
  for (const Cell& cell : second) BindValue(statement.get(), ++parameter, cell.value);
  Step(statement.get(), name_);
}

}  // namespace norvane::store
