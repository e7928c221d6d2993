#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/RuntimeError.h"

namespace norvane::store {

/// The store's error numbers. One number has several texts.
enum class StoreErrorNumber : std::int32_t {
  NoCurrentRecord = 3021,
  ItemNotFound = 3265,
  ObjectClosed = 3704,
  ObjectOpen = 3705,
  ConnectionInvalid = 3709,
  NoStatement = -2147217908,
  MissingParameter = -2147217904,
  TypeMismatchInCriteria = -2147217913,
  Syntax = -2147217900,
  MultipleStep = -2147217887,
  RowIsGone = -2147217864,
  UnknownTable = -2147217865,
  Refused = -2147467259,
  // Of repair and compaction.
  CouldNotFind = 3024,
  NotEnoughSpace = 3026,
  CouldNotUse = 3045,
  DatabaseExists = 3204,
  UnrecognizedDatabase = 3343,
};

namespace error {

// One function per text.

RuntimeError NoCurrentRecord();
RuntimeError ItemNotFound();
RuntimeError ObjectClosed();
RuntimeError ObjectOpen();
RuntimeError ConnectionInvalid(std::string cause = {});
RuntimeError NoStatement();
RuntimeError MissingParameter();
RuntimeError TypeMismatchInCriteria();
RuntimeError MultipleStep();
RuntimeError UnknownTable(std::string_view name);

// What the store cannot read.
RuntimeError MissingOperator(std::string_view expression);
RuntimeError BadDate(std::string_view expression);
RuntimeError SyntaxErrorIn(std::string_view clause);
RuntimeError CharactersAfterEnd();
RuntimeError ValueCountDiffers();
RuntimeError NotAStatement();
RuntimeError TooComplex();
RuntimeError IncompleteClause();
RuntimeError TooManyFields();
RuntimeError DuplicateDestination(std::string_view column);
RuntimeError AmbiguousName(std::string_view name);
RuntimeError AggregateNotAllowed(std::string_view expression);
RuntimeError UndefinedFunction(std::string_view name);
RuntimeError NotInAggregate(std::string_view expression);

// What the table or the file refuses.
RuntimeError DuplicateKey();
RuntimeError NullKey();
RuntimeError NotUpdatable();
RuntimeError RowIsGone();
RuntimeError FileNotFound(std::string_view file);
RuntimeError FileInUse(std::string_view file);
RuntimeError ReadOnly(std::string cause = {});
RuntimeError UnrecognizedFormat(std::string_view file, std::string cause = {});
RuntimeError DiskOrNetwork(std::string cause = {});
RuntimeError NoServer();

// The same under the numbers that repair and compaction have for it.
RuntimeError CouldNotFind(std::string_view file);
RuntimeError NotEnoughSpace();
RuntimeError CouldNotUse(std::string_view file);
RuntimeError DatabaseExists();
RuntimeError UnrecognizedDatabase(std::string_view file);

}  // namespace error
}  // namespace norvane::store
