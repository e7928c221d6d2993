// Whatever stands in a statement, it is refused with an error of the store's or becomes one statement that SQLite
// takes, with a parameter for each literal and a type for each column.

#include "store/internal/Translator.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "store/internal/Binder.h"
#include "store/internal/Lexer.h"
#include "store/internal/Parser.h"
#include "store/internal/SqlFunctions.h"
#include "store/internal/Sqlite.h"

namespace norvane::store {
namespace {

constexpr const char* kWords[] = {
    "select CustNum from tb_Client where ",
    "select Lname, sum(Discount) as D from tb_Client group by ",
    "(tb_Client inner join tb_Invoice on tb_Client.CustNum = tb_Invoice.CustNum)",
    " left join tb_trans on tb_Invoice.InvoiceNum = tb_trans.InvoiceNum ",
    "insert into tb_GL ([Date], Payment, Cleared) values (",
    "update tb_trans set ordered = ",
    "select ",
    "*",
    " from ",
    " where ",
    " group by ",
    " having ",
    " order by ",
    " desc",
    " inner join ",
    " left join ",
    " on ",
    " as ",
    " and ",
    " or ",
    " not ",
    " like ",
    "insert into ",
    " values ",
    "delete * from ",
    "update ",
    " set ",
    "(",
    ")",
    ",",
    ".",
    ";",
    " = ",
    " <> ",
    " < ",
    " >= ",
    " & ",
    "-",
    "'",
    "\"",
    "#",
    "[",
    "]",
    "'a'",
    "\"b\"",
    "'\xC3\xA9'",
    "'5'",
    "0",
    "1001",
    "2.5",
    "1E+15",
    "922337203685477.5807",
    "#1/5/2024#",
    "#12:00:00 AM#",
    "True",
    "False",
    "Null",
    "sum(",
    "max(",
    "val(",
    "isnull(",
    "tb_Client",
    "tb_Invoice",
    "tb_trans",
    "tb_GL",
    "tb_Shipping",
    "ClientBals",
    "CustNum",
    "Lname",
    "[Date]",
    "Amount",
    "Payment",
    "Cleared",
    "Option",
    "Qty",
    "BackOrder",
    "InvoiceNum",
    "TransNum",
    "Balance",
    "Charge",
    "Type",
    "tb_PaymentTypes",
    "tb_Client.CustNum",
    "tb_Invoice.CustNum",
    "tb_Invoice.InvoiceNum",
    "tb_trans.InvoiceNum",
    " ",
};

/// A database with the delivered tables in memory.
class Tables {
 public:
  Tables() {
    sqlite3* opened = nullptr;
    sqlite3_open(":memory:", &opened);
    database_.reset(opened);
    std::stringstream schema;
    schema << std::ifstream(NORVANES_SCHEMA).rdbuf();
    if (sqlite3_exec(opened, schema.str().c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
    AddSqlFunctions(opened);
    catalog_ = Catalog::Read(opened, "");
  }

  sqlite3* Database() const { return database_.get(); }
  const Catalog& Known() const { return catalog_; }

 private:
  DatabaseHandle database_;
  Catalog catalog_;
};

/// Bytes as they are, or each as a word of the dialect: the one finds what the lexer trips over, the other what the
/// grammar does.
std::string StatementOf(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || data[0] % 2 == 0)
    return std::string(reinterpret_cast<const char*>(data) + (size > 0), size - (size > 0));
  std::string statement;
  for (std::size_t i = 1; i < size; ++i) statement += kWords[data[i] % std::size(kWords)];
  return statement;
}

[[noreturn]] void Fail(const char* what, const std::string& statement, const std::string& sql) {
  std::fprintf(stderr, "%s\n%s\n%s\n", what, statement.c_str(), sql.c_str());
  std::abort();
}

void Check(const Tables& tables, const std::string& statement) {
  const Lexed lexed = Lex(statement);
  const Translation translation = Translate(Parse(lexed, statement), lexed, tables.Known());
  sqlite3_stmt* prepared = nullptr;
  const char* rest = nullptr;
  const int code = sqlite3_prepare_v2(tables.Database(), translation.sql.c_str(), -1, &prepared, &rest);
  const StatementHandle owner(prepared);
  const std::string refusal = sqlite3_errmsg(tables.Database());
  if (code != SQLITE_OK && refusal == "parser stack overflow") return;  // nested deeper than SQLite reads
  if (code != SQLITE_OK) Fail(refusal.c_str(), statement, translation.sql);
  if (*rest != '\0') Fail("two statements", statement, translation.sql);
  if (sqlite3_column_count(prepared) != static_cast<int>(translation.columns.size())) {
    Fail("columns", statement, translation.sql);
  }
  if (sqlite3_bind_parameter_count(prepared) != static_cast<int>(translation.bindings.size())) {
    Fail("parameters", statement, translation.sql);
  }
  BindLiterals(prepared, translation.bindings, lexed.literals);
}

}  // namespace
}  // namespace norvane::store

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const norvane::store::Tables tables;
  try {
    norvane::store::Check(tables, norvane::store::StatementOf(data, size));
  } catch (const norvane::RuntimeError&) {  // a refusal
  }
  return 0;
}
