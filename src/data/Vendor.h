#pragma once

#include <cstdint>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"
#include "data/DataObject.h"

namespace norvane {

/// One vendor, one ledger entry, and all access to their tables. The ledger knows a vendor by the company's name alone.
class Vendor : public DataObject {
 public:
  explicit Vendor(Workspace& workspace) : DataObject(workspace) {}

  // The vendor.
  std::int32_t VendorNum = 0;
  std::string Address1, Address2, City, State, ZipCode;
  std::string Phone, CelPhone, Fax;
  std::string Company;
  std::string POnum;
  double Discount = 0;  ///< percent
  std::string Email, WebPage, Notes;
  // Held by the object only.
  std::string CardNum1, CardNum2;
  std::string PaymentType1, PaymentType2;
  std::string ExpDate1, ExpDate2;

  // The ledger entry.
  std::int32_t TransNum = 0;
  Date TransDate;
  std::string Checknum;      ///< a check number, or a word such as "ATM"
  std::string LedgerVendor;  ///< the payee: the column Vendor
  Currency Payment;          ///< money out
  std::string Category;
  Currency Deposit;  ///< money in
  std::string LedgerNotes;
  bool Cleared = false;  ///< by the bank

  /// Always nothing.
  Object<Recordset> GetVendorRS(std::int32_t) { return {}; }
  /// All vendors by company: company, vendornum.
  Object<Recordset> GetAllVendors();
  /// Loads the first vendor of that company. An unknown one clears the properties, and VendorNum is then the next free
  /// number.
  void GetVendor(const std::string& company);
  /// Deletes the company's whole ledger, cleared or not, then the vendor. Nothing if there is no such vendor.
  void DeleteVendor(std::int32_t vendorNum);
  /// Sums a column that the ledger doesn't have, so it reports and returns 0.
  Currency VendorBal(std::int32_t vendorNum);
  /// Saves the vendor's properties: deletes the row of `vendorNum` and inserts one under the property VendorNum. False
  /// after a report.
  bool SaveVendorAccess(std::int32_t vendorNum);
  /// Reads columns that vendors don't have, so it reports and returns an empty text.
  std::string VendorName(std::int32_t vendorNum);
  std::string VendorCompany(std::int32_t vendorNum);
  /// Puts the next free number into VendorNum.
  void GetNewVendorNum();

  /// All entries by date and check number.
  Object<Recordset> LedgerEntriesAll();
  // What LedgerEntries selects by, and the value that means any vendor.
  static constexpr const char* kByVendor = "Vendor";
  static constexpr const char* kByCategory = "Category";
  static constexpr const char* kByDeposit = "Deposit";
  static constexpr const char* kAll = "ALL";
  /// A selection by `field`: vendor, category, NOTES and CLEARED give payments since a date by date and check number,
  /// deposit all deposits of any date by date. Any other field is reported. Letter case is ignored.
  Object<Recordset> LedgerEntries(const std::string& field, const std::string& value, Date since);
  /// Saves the entry's properties. TransNum 0 becomes the next free number; it stays 0 if there is none or the new
  /// entry is refused.
  void SaveLedgerEntry();
  void DeleteLedgerEntry(std::int32_t transNum);
  /// The next free number of an entry.
  std::int32_t NewPayNum();
  /// Deposits less payments.
  Currency LedgerEndBal();
  /// Deposits less payments of what the bank has cleared.
  Currency LedgerCurrentBal();

 private:
  std::string CompanyOf(std::int32_t vendorNum);
  void Blank();
  void Clear();
  void ReadVendor(const Recordset& row);
  std::string LedgerSelection(const std::string& field, const std::string& value, Date since) const;
  Currency Balance(std::string_view payments, std::string_view deposits);
};

}  // namespace norvane
