#include "store/internal/StoreError.h"

#include "core/Characters.h"

namespace norvane::store::error {
namespace {

RuntimeError Make(StoreErrorNumber number, const std::string& text, std::string cause = {}) {
  return RuntimeError(static_cast<std::int32_t>(number), text, std::move(cause));
}

std::string Quoted(std::string_view text) {
  return Concat({"'", text, "'"});
}

}  // namespace

RuntimeError NoCurrentRecord() {
  return Make(StoreErrorNumber::NoCurrentRecord,
              "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
              "current record.");
}

RuntimeError ItemNotFound() {
  return Make(StoreErrorNumber::ItemNotFound,
              "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

RuntimeError ObjectClosed() {
  return Make(StoreErrorNumber::ObjectClosed, "Operation is not allowed when the object is closed.");
}

RuntimeError ObjectOpen() {
  return Make(StoreErrorNumber::ObjectOpen, "Operation is not allowed when the object is open.");
}

RuntimeError ConnectionInvalid(std::string cause) {
  return Make(StoreErrorNumber::ConnectionInvalid,
              "The connection cannot be used to perform this operation. It is either closed or invalid in this "
              "context.",
              std::move(cause));
}

RuntimeError NoStatement() {
  return Make(StoreErrorNumber::NoStatement, "Command text was not set for the command object.");
}

RuntimeError MissingParameter() {
  return Make(StoreErrorNumber::MissingParameter, "No value given for one or more required parameters.");
}

RuntimeError TypeMismatchInCriteria() {
  return Make(StoreErrorNumber::TypeMismatchInCriteria, "Data type mismatch in criteria expression.");
}

RuntimeError MultipleStep() {
  return Make(StoreErrorNumber::MultipleStep, "Multiple-step operation generated errors. Check each status value.");
}

RuntimeError UnknownTable(std::string_view name) {
  return Make(StoreErrorNumber::UnknownTable, "The database engine cannot find the input table or query " +
                                                  Quoted(name) +
                                                  ".  Make sure it exists and that its name is spelled correctly.");
}

RuntimeError MissingOperator(std::string_view expression) {
  return Make(StoreErrorNumber::Syntax,
              "Syntax error (missing operator) in query expression " + Quoted(expression) + ".");
}

RuntimeError BadDate(std::string_view expression) {
  return Make(StoreErrorNumber::Syntax, "Syntax error in date in query expression " + Quoted(expression) + ".");
}

RuntimeError SyntaxErrorIn(std::string_view clause) {
  return Make(StoreErrorNumber::Syntax, "Syntax error in " + std::string(clause) + ".");
}

RuntimeError CharactersAfterEnd() {
  return Make(StoreErrorNumber::Syntax, "Characters found after end of SQL statement.");
}

RuntimeError ValueCountDiffers() {
  return Make(StoreErrorNumber::Syntax, "Number of query values and destination fields are not the same.");
}

RuntimeError NotAStatement() {
  return Make(StoreErrorNumber::Syntax,
              "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'.");
}

RuntimeError TooComplex() {
  return Make(StoreErrorNumber::Syntax, "Query is too complex.");
}

RuntimeError IncompleteClause() {
  return Make(StoreErrorNumber::Syntax, "Syntax error in query.  Incomplete query clause.");
}

RuntimeError TooManyFields() {
  return Make(StoreErrorNumber::Syntax, "Too many fields defined.");
}

RuntimeError DuplicateDestination(std::string_view column) {
  return Make(StoreErrorNumber::Syntax, Concat({"Duplicate output destination ", Quoted(column), "."}));
}

RuntimeError AmbiguousName(std::string_view name) {
  return Make(StoreErrorNumber::Syntax, "The specified field " + Quoted(name) +
                                            " could refer to more than one table listed in the FROM clause of your "
                                            "SQL statement.");
}

RuntimeError AggregateNotAllowed(std::string_view expression) {
  return Make(StoreErrorNumber::Syntax,
              "Cannot have aggregate function in expression (" + std::string(expression) + ").");
}

RuntimeError UndefinedFunction(std::string_view name) {
  return Make(StoreErrorNumber::Syntax, "Undefined function " + Quoted(name) + " in expression.");
}

RuntimeError NotInAggregate(std::string_view expression) {
  return Make(StoreErrorNumber::Syntax, "You tried to execute a query that does not include the specified expression " +
                                            Quoted(expression) + " as part of an aggregate function.");
}

RuntimeError DuplicateKey() {
  return Make(StoreErrorNumber::Refused,
              "The changes you requested to the table were not successful because they would create duplicate values "
              "in the index, primary key, or relationship.  Change the data in the field or fields that contain "
              "duplicate data, remove the index, or redefine the index to permit duplicate entries and try again.");
}

RuntimeError NullKey() {
  return Make(StoreErrorNumber::Refused, "Index or primary key cannot contain a Null value.");
}

RuntimeError NotUpdatable() {
  return Make(StoreErrorNumber::Refused, "Operation must use an updateable query.");
}

RuntimeError RowIsGone() {
  return Make(StoreErrorNumber::RowIsGone,
              "Row cannot be located for updating. Some values may have been changed since it was last read.");
}

RuntimeError FileNotFound(std::string_view file) {
  return Make(StoreErrorNumber::Refused, "Could not find file " + Quoted(file) + ".");
}

RuntimeError FileInUse(std::string_view file) {
  return Make(StoreErrorNumber::Refused, "Could not use " + Quoted(file) + "; file already in use.");
}

RuntimeError ReadOnly(std::string cause) {
  return Make(StoreErrorNumber::Refused, "Cannot update.  Database or object is read-only.", std::move(cause));
}

RuntimeError UnrecognizedFormat(std::string_view file, std::string cause) {
  return Make(StoreErrorNumber::Refused, "Unrecognized database format " + Quoted(file) + ".", std::move(cause));
}

RuntimeError DiskOrNetwork(std::string cause) {
  return Make(StoreErrorNumber::Refused, "Disk or network error.", std::move(cause));
}

RuntimeError NoServer() {
  return Make(StoreErrorNumber::Refused, "No database server is configured on this machine.");
}

RuntimeError CouldNotFind(std::string_view file) {
  return Make(StoreErrorNumber::CouldNotFind, FileNotFound(file).Text());
}

RuntimeError NotEnoughSpace() {
  return Make(StoreErrorNumber::NotEnoughSpace, "Not enough space on disk.");
}

RuntimeError CouldNotUse(std::string_view file) {
  return Make(StoreErrorNumber::CouldNotUse, FileInUse(file).Text());
}

RuntimeError DatabaseExists() {
  return Make(StoreErrorNumber::DatabaseExists, "Database already exists.");
}

RuntimeError UnrecognizedDatabase(std::string_view file) {
  return Make(StoreErrorNumber::UnrecognizedDatabase, UnrecognizedFormat(file).Text());
}

}  // namespace norvane::store::error
