#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"

namespace norvane::ui {

/// One control of each kind, and a log of the events in the order in which they come.
class DemoForm : public Form {
 public:
  static constexpr const char* kName = "DemoForm";
  explicit DemoForm(Program& owner) : Form(owner, kName, {.caption = "Demo", .width = 9000, .height = 9300}) {
    SetLayout(layout::Column({
        layout::Strip({btnSave, btnDelete, btnPrint, layout::Space(), lblBalance, btnExit}),
        layout::Row({layout::Group(
            "Address", layout::Fields({layout::Field("&First:", txtFirst), layout::Field("&Last:", txtLast),
                                       layout::Field("&Amount:", txtAmount), layout::Field("&Terms:", cmbTerms),
                                       layout::Field("Due:", txtDue)},
                                      2))}),
        layout::Row({layout::Field("&Since:", txtSince), DTSince, cmbWhich, OptClient, OptBilling, btnOk}),
        layout::Stretch(Rows),
        StatusBar1,
    }));
    SetExitButton(btnExit);
    Rows.SetFormatString("^|Item|Kind|>Amount|^Paid|Vendor|Notes");
    const Twips widths[] = {300, 1300, 1100, 1100, 600, 1300, 1200};
    for (int col = 0; col < 7; ++col) Rows.SetColWidth(col, widths[col]);
    Rows.SetColDataType(3, ColumnType::Currency);
    Rows.SetColDataType(4, ColumnType::Boolean);
    Rows.SetColComboList(2, "#1;Goods|#2;Services|#3;Freight");
    Rows.SetColComboList(5, "...");
    Rows.AddItem("\tPaper\tGoods\t$12.50\t0\tNorth Mill\t");
    Rows.AddItem("\tDelivery\tFreight\t$4.00\t-1\tQuick Van\tby Friday");
    Rows.AddItem("*");
    for (const auto* item : {"30 days", "60 days", "at once"}) cmbTerms.AddItem(item);
    for (const auto* item : {"Selected Client", "All Clients"}) cmbWhich.AddItem(item);
    Wire();
  }

  Button btnSave{*this, "btnSave", {.caption = "", .toolTip = "Save the record", .icon = "save"}};
  Button btnDelete{*this, "btnDelete", {.caption = "", .toolTip = "Delete the record", .icon = "delete"}};
  Button btnPrint{*this, "btnPrint", {.caption = "", .toolTip = "Print the record", .icon = "print"}};
  Label lblBalance{*this, "lblBalance", "$1,250.00"};
  Button btnExit{*this, "btnExit", {.caption = "", .toolTip = "Leave", .icon = "exit", .isCancel = true}};
  TextBox txtFirst{*this, "txtFirst", {.characters = 14}};
  TextBox txtLast{*this, "txtLast", {.characters = 14}};
  TextBox txtAmount{*this, "txtAmount", {.characters = 10, .rightAligned = true}};
  TextBox txtDue{*this, "txtDue", {.characters = 12, .content = TextContent::Date}};
  ComboBox cmbTerms{*this, "cmbTerms"};
  MaskedBox txtSince{*this, "txtSince"};
  DatePicker DTSince{*this, "DTSince"};
  ComboBox cmbWhich{*this, "cmbWhich", ComboStyle::ItemsOnly, 12};
  OptionButton OptClient{*this, "OptClient", "Client"};
  OptionButton OptBilling{*this, "OptBilling", "Billing"};
  Button btnOk{*this, "btnOk", {.caption = "&OK", .toolTip = "", .icon = "ok", .isDefault = true}};
  Grid Rows{*this, "Rows", GridKind::Editable};
  norvane::StatusBar StatusBar1{*this, "StatusBar1"};
  MenuEntry mnuFile{*this, "mnuFile", "&File"};
  MenuEntry mnuAsk{mnuFile, "mnuAsk", "As&k"};
  MenuEntry mnuExit{mnuFile, "mnuExit", "E&xit"};

  std::vector<std::string> log;
  /// The log since the last call, joined by spaces.
  std::string TakeLog() {
    std::string all;
    for (const auto& entry : log) all += (all.empty() ? "" : " ") + entry;
    log.clear();
    return all;
  }

 private:
  void Wire() {
    for (Control* control : Controls()) {
      if (!control->TakesFocus()) continue;
      control->GotFocus = [this, control] { log.push_back("+" + control->Name()); };
      control->LostFocus = [this, control] { log.push_back("-" + control->Name()); };
    }
    const auto note = [this](const std::string& entry) { return [this, entry] { log.push_back(entry); }; };
    for (Button* button : {&btnSave, &btnDelete, &btnPrint, &btnOk}) button->Click = note(button->Name() + "_Click");
    btnExit.Click = [this] { Unload(); };
    mnuExit.Click = [this] { Unload(); };
    mnuAsk.Click = [this] { desktop.Say("Hello"); };
    txtFirst.Change = note("txtFirst_Change");
    txtSince.Change = note("txtSince_Change");
    DTSince.Change = note("DTSince_Change");
    cmbTerms.Change = note("cmbTerms_Change");
    cmbTerms.Click = note("cmbTerms_Click");
    cmbWhich.Click = note("cmbWhich_Click");
    OptClient.Click = note("OptClient_Click");
    OptBilling.Click = note("OptBilling_Click");
    Rows.LeaveCell = note("LeaveCell");
    Rows.RowColChange = note("RowColChange");
    Rows.EnterCell = note("EnterCell");
    Rows.Click = note("Click");
    Rows.DblClick = note("DblClick");
    Rows.BeforeEdit = [this](int, int) { log.push_back("BeforeEdit"); };
    Rows.AfterEdit = [this](int row, int col) { log.push_back("AfterEdit=" + Rows.Cell(row, col)); };
    Rows.CellButtonClick = [this](int, int) { log.push_back("CellButtonClick"); };
  }

  void Form_Load() override {
    DTSince.SetValue(Date::FromYearMonthDay(2026, 11, 22));
    StatusBar1.AddPanel("Sunday, November 22, 2026   02:29 PM", 3500);
    StatusBar1.AddPanel("12 Clients", 1500);
    lblBalance.SetForeColor(Colour::Red);
    OptClient.SetValue(true);
    log.clear();
  }
};

/// A picker that is shown modally, with what the demo form has no room for.
class CalendarForm : public Form {
 public:
  static constexpr const char* kName = "CalendarForm";
  explicit CalendarForm(Program& owner) : Form(owner, kName, {.caption = "Calendar", .goesWithOwner = true}) {
    SetLayout(layout::Column({
        layout::Tabs(SSTab1, {{"&Day", MonthView1}, {"&Note", layout::Fields({layout::Field("&Note:", txtNote)})}}),
        layout::Row({layout::Space(), btnCancel}),
    }));
    MonthView1.SetValue(Date::FromYearMonthDay(2026, 11, 22));
    MonthView1.DateClick = [this](Date date) { clicked = date; };
    MonthView1.KeyDown = [this](int key) { keys.push_back(key); };
    btnCancel.Click = [this] { Unload(); };
  }

  TabControl SSTab1{*this, "SSTab1"};
  MonthView MonthView1{*this, "MonthView1"};
  TextBox txtNote{*this, "txtNote"};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .toolTip = "", .icon = "cancel", .isCancel = true}};

  Date clicked;
  std::vector<int> keys;
};

}  // namespace norvane::ui
