#pragma once

#include "Office.h"
#include "data/Invoice.h"
#include "screens/CustInvoices.h"
#include "screens/InvSearch.h"
#include "screens/InvoiceDetail.h"
#include "support/Gestures.h"

namespace norvane::test {

/// An office that sells: three clients, a lamp that is counted, and labour that is not.
class SalesOffice : public Office {
 protected:
  static constexpr int kLamp = 1001;
  static constexpr int kLabour = 1002;
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
  void AddInvoice(int number, int custNum, int date, int qty = 1) {
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

  CustInvoices& Sales() { return program.screens.Touch<CustInvoices>(); }
  InvoiceDetail& Sheet() { return program.screens.Touch<InvoiceDetail>(); }
  InvSearch& Picker() { return program.screens.Touch<InvSearch>(); }

  /// Opens an invoice of a client from the sales list.
  InvoiceDetail& Open(int invoiceNum) {
    const auto row = [&] {
      for (int at = 1; at < Sales().InvoiceList.Rows(); ++at) {
        if (Sales().InvoiceList.Cell(at, 1) == std::to_string(invoiceNum)) return at;
      }
      throw std::runtime_error("no such invoice in the list");
    };
    DoubleClick(Sales().InvoiceList, row(), 1);
    return Sheet();
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
    Grid& items = Picker().InventoryList;
    for (int row = 1; row < items.Rows(); ++row) {
      if (items.Cell(row, 0) == std::to_string(itemNum)) return DoubleClick(items, row, 1);
    }
    throw std::runtime_error("no such item in the picker");
  }
  /// Leaves the lines for another field, which stores what waits.
  void LeaveLines() { Sheet().txtTerms.SetFocus(); }
  std::string Line(int row, int col) { return Sheet().ItemList.Cell(row, col); }
};

}  // namespace norvane::test
