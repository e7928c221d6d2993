#include <cstdlib>
#include <map>
#include <random>
#include <set>
#include <utility>

#include "SalesOffice.h"
#include "screens/clients/Profile.h"
#include "screens/sales/Receipts.h"

namespace norvane::test {
namespace {

using Dice = std::mt19937;

int Roll(Dice& dice, int below) {
  return static_cast<int>(dice() % static_cast<unsigned>(below));
}

/// Answers every box, and works a while in every modal window before it closes it.
class CarelessDesktop : public ScriptedDesktop {
 public:
  explicit CarelessDesktop(Dice& dice) : dice_(dice) {}
  std::function<void()> workOn;
  bool deleted = false;  ///< a question about a deletion was answered with Yes

  Answer Ask(const Message& message) override {
    const Answer answers[] = {Answer::Yes, Answer::No, Answer::Cancel};
    if (message.buttons != Buttons::YesNo && message.buttons != Buttons::YesNoCancel) return Answer::Ok;
    // A line whose item has gone would end the deletion of its invoice half-way, as is known.
    if (message.title.starts_with("Delete Inventory")) return Answer::No;
    const Answer answer = answers[Roll(dice_, message.buttons == Buttons::YesNo ? 2 : 3)];
    deleted |= answer == Answer::Yes && message.title.find("elete") != std::string::npos;
    return answer;
  }
  void RunModal(Form& form) override {
    for (int i = 0; i < 4 && form.IsVisible(); ++i) workOn();
    if (form.IsVisible()) form.Unload();
  }

 private:
  Dice& dice_;
};

/// A user who clicks, types and answers at random, in whatever window is open.
class RandomUser {
 public:
  RandomUser(Program& program, Dice& dice) : program_(program), dice_(dice) {}

  void Act() {
    Form& form = *PickForm();
    what = form.Name();
    if (Roll(dice_, 40) == 0 && form.Name() != Customer::kName) return form.UserClose();
    if (!form.MenuBar().empty() && Roll(dice_, 4) == 0) return Choose(form);
    std::vector<Control*> controls;
    for (Control* control : form.Controls()) {
      if (control->Enabled() && control->Visible()) controls.push_back(control);
    }
    if (!controls.empty()) Use(*controls[Roll(dice_, static_cast<int>(controls.size()))]);
  }
  std::string what;  ///< the last action

 private:
  Form* PickForm() {
    std::vector<Form*> forms;
    for (Form* form : program_.screens.Loaded()) {
      if (form->IsVisible() && form->IsModal()) return form;
      if (form->IsVisible() && !form->Style().notice) forms.push_back(form);
    }
    return forms[Roll(dice_, static_cast<int>(forms.size()))];
  }
  void Choose(Form& form) {
    auto& main = static_cast<Customer&>(form);
    MenuEntry* const entries[] = {&main.mnuClient,   &main.mnuNewClient, &main.mnuDelete,    &main.mnuNewInvoice,
                                  &main.mnuInvoices, &main.mnuReceive,   &main.mnuInventory, &main.mnuSetup};
    MenuEntry* entry = entries[Roll(dice_, std::size(entries))];
    // Clients would soon be gone.
    if (entry == &main.mnuDelete && Roll(dice_, 8) != 0) return;
    what += "." + entry->Name();
    if (entry->Enabled()) entry->Choose();
  }
  std::string Text() {
    const char* texts[] = {"7", "-2", "12.5", "few", "", "Lamp", "11/20/2026", "2/31/2026", "0", "$9.00", "1e9"};
    return texts[Roll(dice_, std::size(texts))];
  }
  void Use(Control& control) {
    what += "." + control.Name();
    if (auto* button = dynamic_cast<Button*>(&control)) {
      if (what == "Customer.btnExit" || (what == "Profile.btnDelete" && Roll(dice_, 8) != 0)) return;
      button->Press();
    } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
      box->UserType(Text());
    } else if (auto* masked = dynamic_cast<MaskedBox*>(&control)) {
      masked->UserType(Roll(dice_, 8) == 0 ? "133126" : "010125");
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control); combo && !combo->Items().empty()) {
      combo->UserPick(Roll(dice_, static_cast<int>(combo->Items().size())));
    } else if (auto* month = dynamic_cast<MonthView*>(&control)) {
      month->UserClick(Date(46300 + Roll(dice_, 40)));
    } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
      UseGrid(*grid);
    }
  }
  void UseGrid(Grid& grid) {
    const int col = Roll(dice_, grid.Cols());
    if (grid.Rows() > 1 && grid.ColWidth(col) > 0 && Roll(dice_, 3) != 0) {
      grid.UserClick(1 + Roll(dice_, grid.Rows() - 1), col);
    }
    if (!grid.Parent().IsLoaded() || grid.Row() >= grid.Rows() || grid.Row() == 0) return;
    const Key keys[] = {Key::Down, Key::Up, Key::Tab, Key::Enter, Key::Home, Key::End, Key::F2, Key::F4};
    switch (Roll(dice_, 6)) {
      case 0:
        return grid.UserDoubleClick(grid.Row(), grid.Col());
      case 1:
        return static_cast<void>(grid.UserKey(keys[Roll(dice_, std::size(keys))]));
      case 2:
        return static_cast<void>(grid.UserKey(Key::Down));
      case 3:
        return grid.SetFocus();
      default:
        for (const char letter : Text()) grid.UserText({&letter, 1});
        if (grid.Parent().IsLoaded()) grid.UserKey(Key::Enter);
    }
  }

  Program& program_;
  Dice& dice_;
};

/// The tables' rows by table and number: whose row it is, the client's or the invoice's, and the rest.
struct Row {
  std::string owner, rest;
  bool operator==(const Row&) const = default;
};
using Tables = std::map<std::string, Row>;

/// A small business, and what its windows show before and after each thing the user does.
class Business {
 public:
  explicit Business(unsigned seed) : dice_(seed), desktop_(dice_), program_(desktop_, {}, database_.Folder()) {
    RegisterScreens(program_);
    database_.Execute(
        "INSERT INTO tb_Client (CustNum, Lname, Fname, Discount) VALUES (1001, 'Moss', 'Carl', 0), "
        "(1002, 'Adams', 'Bea', 25), (1003, 'Moss', 'Ada', 0);"
        "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock, Warranty) VALUES "
        "(1001, 1, 'Lamp', 100000, 5, 2, ''), (1002, 1, 'Labour', 400000, 0, 0, '');"
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Shippingdate, "
        "Interest) VALUES (1001, 1003, 46063, 'a', 0, 0, 0, 46063, 0), (1002, 1001, 46070, 'b', 0, 0, 0, 46070, 0), "
        "(1003, 1003, 46080, 'c', 0, 0, 0, 46080, 0);"
        "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) VALUES "
        "(1001, 1001, 1001, 1, 100000, 'Lamp', '0'), (1002, 1002, 1001, 2, 200000, 'Lamp', '0'), "
        "(1003, 1003, 1002, 3, 1200000, 'Labour', '0');"
        "INSERT INTO tb_Receive (TransNum, CustNum, Type, Date, Amount) VALUES (1001, 1003, 'Cash', 46100, 250000), "
        "(1002, 1001, 'Cash', 46101, 350000)");
    desktop_.workOn = [this] { user_.Act(); };
    program_.Start(Customer::kName);
    tables_ = Read();
  }

  /// One thing more is done. What it got wrong; empty for nothing.
  std::string Step() {
    shown_.clear();
    desktop_.deleted = false;
    NoteShown();
    user_.Act();
    NoteShown();
    const Tables before = std::exchange(tables_, Read());
    for (const auto& [key, row] : tables_) {
      if (!HasOwner(key, row)) return user_.what + " leaves without an owner: " + key;
      const auto old = before.find(key);
      if (old != before.end() && old->second == row) continue;
      if (!MayChange(key, row, old == before.end() ? nullptr : &old->second)) return user_.what + " changes " + key;
    }
    for (const auto& [key, row] : before) {
      const bool wasRemoved = key.starts_with("line") && shown_.contains("invoice " + row.owner);
      if (!tables_.contains(key) && !wasRemoved && !desktop_.deleted) return user_.what + " deletes " + key;
    }
    return "";
  }
  std::string Check() { return database_.Cell("PRAGMA integrity_check"); }

 private:
  Tables Read() {
    Tables tables;
    for (const std::string& text : database_.Rows(
             "SELECT 'client', CustNum, CustNum, Lname, Fname, City, Discount FROM tb_Client UNION ALL "
             "SELECT 'invoice', InvoiceNum, CustNum, Date, Description, Terms, Tax FROM tb_Invoice UNION ALL "
             "SELECT 'line', TransNum, InvoiceNum, ItemNum, Qty, Amount, BackOrder FROM tb_trans UNION ALL "
             "SELECT 'payment', TransNum, CustNum, Date, Amount, Type, Notes FROM tb_Receive")) {
      const auto table = text.find('|'), key = text.find('|', table + 1), owner = text.find('|', key + 1);
      tables[text.substr(0, table) + " " + text.substr(table + 1, key - table - 1)] = {
          text.substr(key + 1, owner - key - 1), text.substr(owner)};
    }
    return tables;
  }
  void NoteShown() {
    const auto& screens = program_.screens;
    if (auto* sheet = screens.Find<InvoiceDetail>()) shown_.insert("invoice " + sheet->lblInvoiceNum.Caption());
    if (auto* profile = screens.Find<Profile>()) shown_.insert("client " + profile->lblCustNum.Caption());
    if (auto* payments = screens.Find<Receipts>()) {
      const Grid& list = payments->PaymentList;
      for (int row = 1; row < list.Rows(); ++row) {
        const std::string owner = list.Cell(row, Receipts::kCustNum);
        shown_.insert("payment " + list.Cell(row, Receipts::kTransNum) + " of " + owner);
        shown_.insert("payment of " + owner);
      }
    }
  }
  bool HasOwner(const std::string& key, const Row& row) const {
    return tables_.contains((key.starts_with("line") ? "invoice " : "client ") + row.owner);
  }
  /// Only what a window shows may change, and nothing changes hands but a payment that shows its new client.
  bool MayChange(const std::string& key, const Row& row, const Row* old) const {
    if (key.starts_with("client")) return shown_.contains(key);
    if (key.starts_with("payment")) return shown_.contains((old ? key : "payment") + " of " + row.owner);
    if (old && old->owner != row.owner) return false;
    return shown_.contains(key.starts_with("line") ? "invoice " + row.owner : key);
  }

  Dice dice_;
  Database database_;
  CarelessDesktop desktop_;
  Program program_;
  RandomUser user_{program_, dice_};
  Tables tables_;
  std::set<std::string> shown_;
};

/// A longer run is asked for by the number of actions in NORVANES_ACTIONS.
TEST(RandomUse, ChangesOnlyWhatIsShownAndLeavesNothingWithoutAnOwner) {
  const char* asked = std::getenv("NORVANES_ACTIONS");
  const int actions = asked ? std::atoi(asked) : 300;
  for (unsigned seed = 1; seed <= 5; ++seed) {
    Business business(seed);
    for (int step = 1; step <= actions; ++step) {
      ASSERT_EQ(business.Step(), "") << "seed " << seed << ", action " << step;
      if (step % 100 == 0) {
        ASSERT_EQ(business.Check(), "ok") << "seed " << seed << ", action " << step;
      }
    }
  }
}

}  // namespace
}  // namespace norvane::test
