#pragma once

#include "Office.h"
#include "screens/registry/GL.h"
#include "screens/registry/Vendors.h"

namespace norvane::test {

/// An office with the vendors Acme (1001) and Bolt (1002) and the delivered expense types.
class RegistryOffice : public Office {
 protected:
  explicit RegistryOffice(const RegionalSettings& settings = {}) : Office(settings) {
    AddClients();
    AddVendor(1001, "Acme");
    AddVendor(1002, "Bolt");
  }

  void AddVendor(int number, const std::string& company) {
    database.Execute("INSERT INTO tb_Vendor (VendorNum, Company, City, Discount) VALUES (" + std::to_string(number) +
                     ", '" + company + "', 'Bath', 2.5)");
  }
  /// An entry of November 2026 in whole units.
  void AddEntry(int number, int dayOfMonth, const std::string& check, int payment, int deposit,
                const std::string& vendor = "Acme", const std::string& category = "Rent", bool cleared = false) {
    const auto value = [](int figure) { return std::to_string(figure); };
    database.Execute(
        "INSERT INTO tb_GL (TransNum, Date, CheckNum, Vendor, Category, Payment, Deposit, Cleared) VALUES (" +
        value(number) + ", " + value(46327 + dayOfMonth - 1) + ", '" + check + "', '" + vendor + "', '" + category +
        "', " + value(payment * 10'000) + ", " + value(deposit * 10'000) + ", " + value(cleared ? -1 : 0) + ")");
  }
  /// Starts with the registry open and the cursor in the date of its empty row.
  void OpenRegistry() {
    Start();
    Main().btnPayments.Press();
  }
  GL& Registry() { return The<GL>(); }
  Grid& List() { return Registry().PaymentList; }
  std::string Row(int row) { return RowText(List(), row); }
  std::vector<std::string> Entries() {
    return database.Rows(
        "SELECT TransNum, Date, CheckNum, Vendor, Category, Payment, Cleared, Deposit, Notes FROM tb_GL");
  }
};

}  // namespace norvane::test
