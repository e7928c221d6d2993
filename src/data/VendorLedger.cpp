#include "core/Characters.h"
#include "core/Conversions.h"
#include "data/Statement.h"
#include "data/Vendor.h"

namespace norvane {

namespace {

constexpr NumberedTable kEntries{"tb_GL", "TransNum"};

}  // namespace

Object<Recordset> Vendor::LedgerEntriesAll() {
  return List("Vendor.LedgerEntriesAll -", "SELECT * from tb_GL order by [date], checknum");
}

Object<Recordset> Vendor::LedgerEntries(const std::string& field, const std::string& value, Date since) {
  return Result("Vendor.LedgerEntries -", [&] { return Detached(LedgerSelection(field, value, since)); });
}

// Selections show payments only, but for DEPOSIT, which shows all deposits of all times. CLEARED compares a Boolean
// column with a quoted word.
std::string Vendor::LedgerSelection(const std::string& field, const std::string& value, Date since) const {
  const auto isBy = [&](std::string_view name) { return EqualNoCase(field, name); };
  if (isBy(kByDeposit)) return "SELECT * from tb_GL where deposit > 0 order by [date]";
  std::string condition;
  if (isBy(kByVendor)) {
    if (!EqualNoCase(value, kAll)) condition = sql::Statement("Vendor = '", value, "' and ");
  } else if (isBy(kByCategory)) {
    condition = sql::Statement("Category = '", value, "' and ");
  } else if (isBy("NOTES")) {
    condition = sql::Statement("Notes = '", value, "' and ");
  } else if (isBy("CLEARED")) {
    condition = sql::Statement("cleared = '", workspace_.convert.ToBoolean(value), "' and ");
  } else {
    return "";
  }
  return sql::Statement("SELECT * from tb_GL where ", condition, "payment > 0 and [date]>=", since,
                        " order by [date], checknum");
}

void Vendor::SaveLedgerEntry() {
  Trapped("Vendor.SaveLedgerEntry -", [&] {
    SaveNumbered(
        kEntries, TransNum, [&] { return NewPayNum(); },
        [&] {
          Replace(
              sql::Statement("delete * from tb_gl where Transnum = ", TransNum),
              sql::Insert(
                  "Insert into tb_GL (TransNum,[Date],CheckNum,Vendor,Payment,Cleared,Category,Deposit,Notes) values (",
                  TransNum, TransDate, Checknum, LedgerVendor, Payment, Cleared, Category, Deposit, LedgerNotes));
        });
  });
}

void Vendor::DeleteLedgerEntry(std::int32_t transNum) {
  Trapped("Vendor.DeleteLedgerEntry -",
          [&] { Run(sql::Statement("delete * from tb_GL where Transnum = ", transNum)); });
}

std::int32_t Vendor::NewPayNum() {
  return Result("Vendor.NewPayNum -", [&] { return NextKey(kEntries); });
}

Currency Vendor::LedgerEndBal() {
  return Result("Vendor.LedgerEndBal -", [&] {
    return Balance("select sum(Payment) as TotalPay from tb_GL", "select sum(deposit) as TotalDeposits from tb_GL");
  });
}

Currency Vendor::LedgerCurrentBal() {
  return Result("Vendor.LedgerCurrentBal -", [&] {
    return Balance("select sum(Payment) as TotalPay from tb_GL where cleared = true",
                   "select sum(deposit) as TotalDeposits from tb_GL where cleared = true");
  });
}

Currency Vendor::Balance(std::string_view payments, std::string_view deposits) {
  const Currency paid = SumOrZero(*Read(payments), "TotalPay");
  return SumOrZero(*Read(deposits), "TotalDeposits") - paid;
}

}  // namespace norvane
