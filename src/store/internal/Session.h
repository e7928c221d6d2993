#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/Value.h"
#include "store/internal/EngineState.h"
#include "store/internal/Rows.h"
#include "store/internal/Sqlite.h"
#include "store/internal/Translator.h"

namespace norvane::store {

/// One open file: its handle and the statements prepared on it so far.
class Session {
 public:
  /// Raises -2147467259 with the reason if the file is missing, locked or no database. Never makes a file.
  Session(EngineState& engine, const std::filesystem::path& file);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  struct Outcome {
    std::shared_ptr<const Translation> translation;
    std::shared_ptr<Rows> rows;  ///< nothing if the statement changed rows
  };
  /// Runs one statement of the store's dialect.
  Outcome Run(std::string_view statement);

  /// Changes one row in place: the columns named get the values.
  struct Cell {
    std::string column;
    Value value;
  };
  void UpdateRow(const std::string& table, const std::vector<Cell>& cells, const std::vector<Cell>& key);
  void InsertRow(const std::string& table, const std::vector<Cell>& cells);

 private:
  std::shared_ptr<const Translation> TranslationOf(const Lexed& lexed, std::string_view statement);
  sqlite3_stmt* StatementOf(const std::shared_ptr<const Translation>& translation);
  void RunWithValues(const std::string& sql, const std::vector<Cell>& first, const std::vector<Cell>& second);
  std::int32_t SchemaVersion();

  EngineState& engine_;
  std::string name_;  ///< as the texts of errors show it
  std::filesystem::path folder_;
  std::optional<Participation> participation_;  ///< ends after the database is closed
  DatabaseHandle database_;
  std::shared_ptr<FileKnowledge> knowledge_;
  struct Prepared {
    std::shared_ptr<const Translation> translation;
    StatementHandle statement;
  };
  std::unordered_map<const Translation*, Prepared> prepared_;
};

}  // namespace norvane::store
