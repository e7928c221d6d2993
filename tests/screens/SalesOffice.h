#pragma once

#include "Office.h"
#include "data/Invoice.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/stock/InvSearch.h"

namespace norvane::test {

/// An office that sells: three clients, a lamp that is counted, and labour that is not.
class SalesOffice : public Office {
 protected:
  static constexpr int kLamp = 1001;
  static constexpr int kLabour = 1002;
  /// Ada Moss, in the second row of the clients.
  static constexpr int kAda = 1003;
  /// January 1st 2026 as the tables hold it.
  static constexpr int kNewYear = 46023;

  explicit SalesOffice(const RegionalSettings& settings = {}) : Office(settings) {
    AddClients();
    database.Execute(
        "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) VALUES "
        "(1001, 1, 'Lamp', 100000, 5, 2), (1002, 1, 'Labour', 400000, 0, 0);"
        "INSERT INTO tb_Company (Name, Statetaxrate) VALUES ('Quill & Co', 5)");
  }

  /// An invoice over `qty` lamps of 10.00; none for 0.
  void AddInvoice(int number, int custNum = kAda, int date = kNewYear + 40, int qty = 1) {
    const std::string key = std::to_string(number);
    database.Execute(
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Shippingdate, "
        "Interest) VALUES (" +
        key + ", " + std::to_string(custNum) + ", " + std::to_string(date) + ", 'Order " + key + "', 0, 0, 0, " +
        std::to_string(date) + ", 0)");
    if (qty != 0) AddLine(number, number, qty);
  }
  void AddLine(int transNum, int invoiceNum, int qty, int backOrder = 0) {
    database.Execute("INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) VALUES (" +
                     std::to_string(transNum) + ", " + std::to_string(invoiceNum) + ", 1001, " + std::to_string(qty) +
                     ", " + std::to_string(qty * 100000) + ", 'Lamp', '" + std::to_string(backOrder) + "')");
  }
  void SetStock(int inStock) {
    database.Execute("UPDATE tb_Inventory SET InStock = " + std::to_string(inStock) + " WHERE ItemNum = 1001");
  }
  std::string Stock() { return database.Cell("SELECT InStock FROM tb_Inventory WHERE ItemNum = 1001"); }
  /// Lines as "TransNum|ItemNum|Qty|Amount|BackOrder".
  std::vector<std::string> Lines() {
    return database.Rows("SELECT TransNum, ItemNum, Qty, Amount, BackOrder FROM tb_trans");
  }

  CustInvoices& Sales() { return The<CustInvoices>(); }
  InvoiceDetail& Sheet() { return The<InvoiceDetail>(); }
  InvSearch& Picker() { return The<InvSearch>(); }

  /// Starts with the sales of Ada Moss.
  void StartWithSales() {
    Start();
    Select(2);
    Main().btnDetails.Press();
  }
  /// Opens an invoice from the sales list.
  InvoiceDetail& Open(int invoiceNum) {
    DoubleClick(Sales().InvoiceList, RowOf(invoiceNum, Sales().InvoiceList, 1), 1);
    return Sheet();
  }
  InvoiceDetail& StartWith(int invoiceNum) {
    StartWithSales();
    return Open(invoiceNum);
  }
  void ListAll() {
    program.screens.Show(CustInvoices::kName);
    Sales().txtSinceDate.UserType("010120");
    Sales().CmbInvoice.UserPick(1);
    Sales().btnGo.Press();
  }
  /// Adds one unit of an item as a line.
  void PickItem(int itemNum) {
    Sheet().btnNewItem.Press();
    DoubleClick(Picker().InventoryList, RowOf(itemNum, Picker().InventoryList, 0), 1);
  }
  /// Leaves the lines for another field, which stores what waits.
  void LeaveLines() { Sheet().txtTerms.SetFocus(); }
  std::string Line(int row, int col) { return Sheet().ItemList.Cell(row, col); }

 private:
  static int RowOf(int number, const Grid& list, int col) {
    for (int row = 1; row < list.Rows(); ++row) {
      if (list.Cell(row, col) == std::to_string(number)) return row;
    }
    throw std::runtime_error(std::to_string(number) + " is not in the list");
  }
};

}  // namespace norvane::test
