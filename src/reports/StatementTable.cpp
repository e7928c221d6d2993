#include "reports/StatementTable.h"

#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kStatementTable{pages::TableBorder::Grid, "^1in|3in|>1.125in|>1.125in|>1.125in;",
                                    "Date|Description|Charge|Payment|Balance;"};

}  // namespace

StatementTable::StatementTable(pages::DocumentBuilder& document, const Conversions& convert, Date opening,
                               Currency balance)
    : table_(document, convert, kStatementTable), balance_(balance) {
  table_.Row(opening, "Starting Balance", "", "", Money{balance_});
}

void StatementTable::Charge(const Value& date, const Value& description, Currency total) {
  balance_ += total;
  table_.Row(date, description, Money{total}, "", Money{balance_});
}

void StatementTable::Payments(Recordset& payments) {
  for (; !payments.Eof(); payments.MoveNext()) {
    const Currency amount = payments.Currency("amount");
    balance_ -= amount;
    table_.Row(payments.Field("Date"), "Payment - Thank You!", "", Money{amount}, Money{balance_});
  }
}

}  // namespace norvane
