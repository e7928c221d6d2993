#pragma once

#include <cstdint>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"
#include "data/DataObject.h"
#include "data/KeyText.h"

namespace norvane {

/// One invoice, one of its lines and one client payment, and all access to their tables.
///
/// The properties carry over from one use to the next. The caller of a save sets all that it writes, TransNum and
/// PayNum among them, 0 for a new line or payment.
class Invoice : public DataObject {
 public:
  /// Dates are today.
  explicit Invoice(Workspace& workspace);

  // The invoice.
  KeyText InvoiceNum;
  KeyText CustNum;
  Date InvoiceDate;
  std::string description;
  double Discount = 0;  ///< percent of the lines
  Currency Tax;         ///< an amount, not a rate
  Currency ShippingCharge;
  Date Shippingdate;
  std::string ShippingType;
  std::string TrackingNum;
  Currency Interest;
  std::string SalesRep;
  std::string Terms;

  // The line.
  std::int32_t TransNum = 0;
  std::int32_t ItemNum = 0;
  Currency charge;  ///< the line's total, quantity times unit price
  std::int32_t Qty = 0;
  std::string TransNotes;
  std::int32_t BackOrder = 0;  ///< units short as a negative number, else 0

  // The payment; its client is CustNum.
  std::int32_t PayNum = 0;
  std::string Checknum;
  Date PayDate;
  Currency Payment;
  std::string Paytype;
  std::string PayNotes;

  /// The invoices after `sinceDate`, the latest number first: CustNum, Lname, Fname, InvoiceDate, InvoiceNum, Discount,
  /// ShippingCharge, Interest, Tax, Charge, Description. Charge is the sum of the lines, Null if there are none.
  Object<Recordset> GetAllInvoices(Date sinceDate);
  /// The same of one client.
  Object<Recordset> GetCustInvoices(std::int32_t custNum, Date sinceDate);
  /// Fills the invoice's properties. An unknown number clears them, except Discount, and InvoiceNum is then the next
  /// free number.
  void GetInvoice(std::int32_t invoiceNum);
  /// Saves the invoice's properties: deletes the row of `invoiceNum` and inserts one under the property InvoiceNum.
  /// False after a report.
  bool SaveInvoiceAccess(std::int32_t invoiceNum);
  /// Deletes the invoice, returns the stock of its lines item by item, then deletes the lines. A line whose item is
  /// gone ends the deletion there.
  void DeleteInvoice(std::int32_t invoiceNum);
  /// Puts the next free number into InvoiceNum.
  void GetnewInvoiceNum();
  /// (S - Discount/100 x S) + ShippingCharge + Interest + Tax, S being the sum of the lines; computed in floating point
  /// and rounded once, at the end, to four decimals. S alone if there is no such invoice or after a report.
  Currency InvoiceTotal(std::int32_t invoiceNum);

  /// An invoice's lines in the table's order.
  Object<Recordset> GetInvoiceItems(std::int32_t invoiceNum);
  /// Saves the line's properties, which empties its order date. TransNum 0 becomes the next free number; it stays 0 if
  /// there is none or the new line is refused.
  void SaveTransAccess();
  /// Deletes a line. No stock is returned.
  void DeleteInvoiceItem(std::int32_t transNum);
  /// The next free number of a line.
  std::int32_t NewTransNum();
  /// The lines on back order that have no order date yet: TransNum, InvoiceNum, ItemNum, Notes, BackOrderQty, Ordered,
  /// InvoiceDate, SalesRep, Lname, Fname.
  Object<Recordset> GetBackOrderItems();
  /// The same of those that have one.
  Object<Recordset> GetBackOrderedItems();
  void SaveOrderDate(std::int32_t transNum, Date orderDate);
  /// All lines on back order of items whose stock is counted, ordered or not, the oldest invoice first: the same, and
  /// InStock.
  Object<Recordset> GetCountedBackOrders();
  /// Sets a line's back order to 0 and nothing else. False after a report.
  bool ClearBackOrder(std::int32_t transNum);

  /// The payments after `sinceDate` by date and number, of one client or, for -1, of all: CustNum, Fname, Lname,
  /// FullName, TransNum, Type, CheckNum, Date, Amount, Notes. Leaves `custNum` in the property CustNum.
  Object<Recordset> AllPayments(Date sinceDate, std::int32_t custNum);
  /// Client and date of a payment: CustNum, Date. No row if there is no such payment.
  Object<Recordset> rsPayment(std::int32_t transNum);
  /// Saves the payment's properties. PayNum 0 becomes the next free number; it stays 0 if there is none or the new
  /// payment is refused.
  void SavePayment();
  void DeletePayment(std::int32_t transNum);
  /// The next free number of a payment.
  std::int32_t NewPayNum();

  /// Save through the server's procedures. Errors go to the caller.
  void SaveInvoice();
  void SaveTrans();
  /// Adds a row to the list read last.
  void AddToInvoice(std::int32_t invoiceNum, std::int32_t itemNum, std::int32_t qty, Currency amount,
                    const std::string& notes, bool backOrder);

 private:
  void BlankInvoice();
  void ClearInvoice();
  void ReadInvoice(const Recordset& row);
  void ReturnToStock(const Recordset& line);
};

}  // namespace norvane
