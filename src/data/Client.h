#pragma once

#include <cstdint>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"
#include "data/DataObject.h"

namespace norvane {

/// One client's record and all access to the table of clients. GetClient fills the properties, a screen reads and sets
/// them, SaveClientAccess writes them all back.
class Client : public DataObject {
 public:
  explicit Client(Workspace& workspace) : DataObject(workspace) {}

  std::int32_t CustNum = 0;
  std::string lname, fname, Mname;
  std::string Address1, Address2, City, State, ZipCode;
  std::string HomePhone, WorkPhone;
  std::string Company;
  std::string POnum;
  double Discount = 0;  ///< percent
  std::string CelPhone, Fax, Email, WebPage, Notes;
  std::string BillLname, BillFname, BillMname;
  std::string BillAddress1, BillAddress2, Billcity, BillState, BillZipCode;
  std::string BillHomePhone, BillWorkPhone, BillCelPhone, BillFax, BillEmail, BillWebPage;
  std::string CardNum1, CardNum2, PaymentType1, PaymentType2, ExpDate1, ExpDate2;
  std::string ShipLname, ShipFname, ShipMname;
  std::string ShipAddress1, ShipAddress2, Shipcity, ShipState, ShipZipCode;
  std::string ShipHomePhone, ShipWorkPhone, ShipCelPhone;

  /// All clients by last and first name: custnum, fname, lname, homephone, workphone, celphone, email.
  Object<Recordset> GetAllClients();
  /// The whole rows of the clients whose last name begins with `clientName`.
  Object<Recordset> GetClientRS(const std::string& clientName);
  /// Fills the properties. An unknown number, 0 among them, makes this an empty client with the next free number, of
  /// which nothing is written yet. True if the client exists.
  bool GetClient(std::int32_t custNum);
  /// Deletes the client, then the payments, the invoices' lines and the invoices. The lines' stock isn't returned.
  void DeleteClient(std::int32_t custNum);
  /// Saves the properties: deletes the row of `custNum` and inserts one under the property CustNum. False after a
  /// report.
  bool SaveClientAccess(std::int32_t custNum);
  /// First, middle and last name with a space between each, two where there is no middle name.
  std::string ClientName(std::int32_t custNum);
  /// Saves through the server's procedure and returns -1. Errors go to the caller.
  std::int16_t SaveClient();

  /// What every client owes today: CustNum, FullName, Bal, by the full name.
  Object<Recordset> ClientBals();
  /// Dates and amounts of the client's payments, the last one first.
  Object<Recordset> rsLastPayment(std::int32_t custNum);
  /// What the client owes at the end of `balDate`: the totals of the invoices up to then less the payments; negative is
  /// a credit. A `balDate` of 0 means everything up to today and is changed to tomorrow. Uses the shared oInvoice,
  /// whose connection is closed afterwards.
  Currency ClientBal(std::int32_t custNum, Date& balDate);

 private:
  struct TextColumn;
  static const TextColumn kColumnsBeforeDiscount[];
  static const TextColumn kColumnsAfterDiscount[];

  void GetNewCustNum();
  void Blank();
  void Clear();
  void ReadProperties(const Recordset& row);
};

}  // namespace norvane
