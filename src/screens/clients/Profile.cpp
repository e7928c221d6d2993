#include "screens/clients/Profile.h"

#include <algorithm>
#include <initializer_list>

#include "core/Val.h"
#include "data/Client.h"
#include "screens/Suggestions.h"
#include "screens/clients/ClientCommands.h"
#include "screens/clients/Customer.h"
#include "screens/clients/RefreshCustList.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

struct Bound {
  TextBox Profile::*box;
  std::string Client::*property;
};

/// Which box shows which property. Notes has none.
constexpr Bound kBound[] = {
    {&Profile::txtFname, &Client::fname},
    {&Profile::txtMname, &Client::Mname},
    {&Profile::txtLname, &Client::lname},
    {&Profile::txtAddress, &Client::Address1},
    {&Profile::txtAddress2, &Client::Address2},
    {&Profile::txtCity, &Client::City},
    {&Profile::txtState, &Client::State},
    {&Profile::txtZipCode, &Client::ZipCode},
    {&Profile::txtHomePhone, &Client::HomePhone},
    {&Profile::txtCellPhone, &Client::CelPhone},
    {&Profile::txtWorkPhone, &Client::WorkPhone},
    {&Profile::txtFax, &Client::Fax},
    {&Profile::txtEmail, &Client::Email},
    {&Profile::txtWebPage, &Client::WebPage},
    {&Profile::txtCompany, &Client::Company},

    {&Profile::txtBillFname, &Client::BillFname},
    {&Profile::txtBillMName, &Client::BillMname},
    {&Profile::txtBillLname, &Client::BillLname},
    {&Profile::txtBillAddress, &Client::BillAddress1},
    {&Profile::txtBillAddress2, &Client::BillAddress2},
    {&Profile::txtBillCity, &Client::Billcity},
    {&Profile::txtBillState, &Client::BillState},
    {&Profile::TxtBillZipCode, &Client::BillZipCode},
    {&Profile::txtBillHomePHone, &Client::BillHomePhone},
    {&Profile::txtBillCellPhone, &Client::BillCelPhone},
    {&Profile::txtBillWorkPhone, &Client::BillWorkPhone},
    {&Profile::txtBillFax, &Client::BillFax},
    {&Profile::txtBillEmail, &Client::BillEmail},
    {&Profile::txtBillWebPage, &Client::BillWebPage},
    {&Profile::txtCard1, &Client::CardNum1},
    {&Profile::txtExpDate1, &Client::ExpDate1},
    {&Profile::txtCard2, &Client::CardNum2},
    {&Profile::txtExpDate2, &Client::ExpDate2},
    {&Profile::txtPOnum, &Client::POnum},

    {&Profile::txtShippingFname, &Client::ShipFname},
    {&Profile::txtShippingMname, &Client::ShipMname},
    {&Profile::txtshippingLname, &Client::ShipLname},
    {&Profile::txtShippingAddress, &Client::ShipAddress1},
    {&Profile::txtShippingAddress2, &Client::ShipAddress2},
    {&Profile::txtShippingCity, &Client::Shipcity},
    {&Profile::txtShippingState, &Client::ShipState},
    {&Profile::txtShippingZipCode, &Client::ShipZipCode},
    {&Profile::txtShippingHomePhone, &Client::ShipHomePhone},
    {&Profile::txtShippingCelPhone, &Client::ShipCelPhone},
    {&Profile::txtShippingWorkPhone, &Client::ShipWorkPhone},
};

struct Counterparts {
  TextBox Profile::*client;
  TextBox Profile::*billing;
  TextBox Profile::*shipping;
};

/// The boxes that the copying buttons take one for another.
constexpr Counterparts kCounterparts[] = {
    {&Profile::txtLname, &Profile::txtBillLname, &Profile::txtshippingLname},
    {&Profile::txtFname, &Profile::txtBillFname, &Profile::txtShippingFname},
    {&Profile::txtMname, &Profile::txtBillMName, &Profile::txtShippingMname},
    {&Profile::txtAddress, &Profile::txtBillAddress, &Profile::txtShippingAddress},
    {&Profile::txtAddress2, &Profile::txtBillAddress2, &Profile::txtShippingAddress2},
    {&Profile::txtCity, &Profile::txtBillCity, &Profile::txtShippingCity},
    {&Profile::txtState, &Profile::txtBillState, &Profile::txtShippingState},
    {&Profile::txtZipCode, &Profile::TxtBillZipCode, &Profile::txtShippingZipCode},
    {&Profile::txtHomePhone, &Profile::txtBillHomePHone, &Profile::txtShippingHomePhone},
    {&Profile::txtCellPhone, &Profile::txtBillCellPhone, &Profile::txtShippingCelPhone},
    {&Profile::txtWorkPhone, &Profile::txtBillWorkPhone, &Profile::txtShippingWorkPhone},
    {&Profile::txtFax, &Profile::txtBillFax, nullptr},
    {&Profile::txtEmail, &Profile::txtBillEmail, nullptr},
    {&Profile::txtWebPage, &Profile::txtBillWebPage, nullptr},
};

layout::Node NameGroup(TextBox& first, TextBox& middle, TextBox& last) {
  using namespace layout;
  return Group("Name", Fields({Field("First:", first), Field("Middle:", middle), Field("Last:", last)}, 3));
}

layout::Node CityLine(TextBox& city, TextBox& state, TextBox& zipCode) {
  using namespace layout;
  return Field("City:", Row({city, Field("State:", state), Field("Zip Code:", zipCode)}));
}

}  // namespace

Profile::Profile(Program& host) : Form(host, kName, {.caption = "Client Profile"}) {
  SetLayout(
      layout::Column({layout::Strip({btnSave, btnDelete, btnNewInvoice, btnNewCustomer, layout::Space(), Label31,
                                     lblBalDue, layout::Space(), btnExit}),
                      layout::Stretch(layout::Tabs(
                          SSTab1, {{"Client", ClientTab()}, {"Billing", BillingTab()}, {"Shipping", ShippingTab()}})),
                      layout::Strip({lblSaved, layout::Space()})}));
  for (Label* label : {&lblSaved, &lblBillEmpty, &lblShipEmpty}) label->SetForeColor(Colour::Grey);
  SetExitButton(btnExit);
  btnSave.Click = [this] { btnSave_Click(); };
  btnDelete.Click = [this] { btnDelete_Click(); };
  WireTo(btnNewInvoice, screen::kInvoiceDetail, [this] { btnNewInvoice_Click(); });
  btnNewCustomer.Click = [this] { btnNewCustomer_Click(); };
  btnExit.Click = [this] { btnExit_Click(); };
  btnSame.Click = [this] { btnSame_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  WireChanges();
}

layout::Node Profile::ClientTab() {
  using namespace layout;
  return Column(
      {Fields({Field("Customer #:", lblCustNum)}), NameGroup(txtFname, txtMname, txtLname),
       Group("Address", Fields({Field("Street:", txtAddress), Field("Street2:", txtAddress2),
                                CityLine(txtCity, txtState, txtZipCode)})),
       Group("Contact", Fields({Field("Home Phone:", txtHomePhone), Field("Cell Phone:", txtCellPhone),
                                Field("Work Phone:", txtWorkPhone), Field("Fax:", txtFax), Field("E-Mail:", txtEmail),
                                Field("Web Page:", txtWebPage), Field("Company:", txtCompany)},
                               2)),
       Space()});
}

layout::Node Profile::BillingTab() {
  using namespace layout;
  const auto method = [](const char* caption, TextBox& card, ComboBox& type, TextBox& expDate) {
    return Stretch(Group(caption, Fields({Field("Card #:", card), Field("Type:", type), Field("Exp Date:", expDate)})));
  };
  return Column(
      {Row({btnSame, lblBillEmpty, Space()}), NameGroup(txtBillFname, txtBillMName, txtBillLname),
       Group("Address", Fields({Field("Street:", txtBillAddress), Field("Street2:", txtBillAddress2),
                                CityLine(txtBillCity, txtBillState, TxtBillZipCode)})),
       Group("Contact", Fields({Field("Home Phone:", txtBillHomePHone), Field("Cell Phone:", txtBillCellPhone),
                                Field("Work Phone:", txtBillWorkPhone), Field("Fax:", txtBillFax),
                                Field("E-Mail:", txtBillEmail), Field("Web Page:", txtBillWebPage)},
                               2)),
       Row({method("Payment Method 1", txtCard1, cmbPmtType1, txtExpDate1),
            method("Payment Method 2", txtCard2, cmbPmtType2, txtExpDate2)}),
       Row({Field("Discount %:", txtDiscount), Field("Purchase Order #:", txtPOnum), Space()}), Space()});
}

layout::Node Profile::ShippingTab() {
  using namespace layout;
  return Column(
      {Group("Same as", Row({OptCust, OptBilling, Command1, Command2, lblShipEmpty, Space()})),
       NameGroup(txtShippingFname, txtShippingMname, txtshippingLname),
       Group("Address", Fields({Field("Address:", txtShippingAddress), Field("Address2:", txtShippingAddress2),
                                CityLine(txtShippingCity, txtShippingState, txtShippingZipCode)})),
       Group("Contact", Fields({Field("Home Phone:", txtShippingHomePhone), Field("Cell Phone:", txtShippingCelPhone),
                                Field("Work Phone:", txtShippingWorkPhone)},
                               2)),
       Space()});
}

void Profile::WireChanges() {
  const auto changed = [this] { Touched(); };
  for (const Bound& bound : kBound) (this->*bound.box).Change = changed;
  cmbPmtType1.Change = changed;
  cmbPmtType2.Change = changed;
  txtDiscount.Change = changed;
  // What the main screen's list shows.
  for (TextBox* box : {&txtFname, &txtLname, &txtHomePhone, &txtWorkPhone, &txtCellPhone, &txtEmail}) {
    box->Change.Replace([this] {
      globals.RefreshNeeded = true;
      Touched();
    });
  }
  for (TextBox* city : {&txtCity, &txtBillCity, &txtShippingCity}) Suggest(*city, workspace, &UsedTexts::Cities);
  OptCust.SetToolTip(kCopyClient);
  OptBilling.SetToolTip(kCopyBilling);
}

void Profile::Touched() {
  Changed = true;
  ShowSaved(false);
  ShowEmptyAddresses();
}

void Profile::ShowSaved(bool saved) {
  lblSaved.SetCaption(saved ? "Saved" : "Not saved");
}

// The telephones don't count: no invoice prints them.
void Profile::ShowEmptyAddresses() {
  const auto isEmpty = [](std::initializer_list<const TextBox*> boxes) {
    return std::all_of(boxes.begin(), boxes.end(), [](const TextBox* box) { return box->Text().empty(); });
  };
  lblBillEmpty.SetVisible(isEmpty({&txtBillFname, &txtBillLname, &txtBillAddress, &txtBillCity}));
  lblShipEmpty.SetVisible(isEmpty({&txtShippingFname, &txtshippingLname, &txtShippingAddress, &txtShippingCity}));
}

void Profile::Form_Load() {
  if (!IsVisible()) txtFname.SetFocus();
  Trapped("Profile.Form_Load -", [&] {
    const Object<Client> client = globals.oClient;
    client->OpenCn();
    numberIsUnsaved_ = !client->GetClient(globals.CurCustNum);
    if (client->CustNum != 0) ShowBalance();
    SetForm();
    client->CloseCn();
    globals.ProfileLoaded = false;
    // Filling the boxes has raised their Change. RefreshNeeded keeps what that did to it.
    Changed = false;
    ShowSaved(!numberIsUnsaved_);
    ShowEmptyAddresses();
    client_ = {NumberShown(), txtLname.Text().empty() ? "" : NameShown()};
    SelectClient(program, client_);
    AddPaymentTypes();
  });
}

void Profile::ShowBalance() {
  Date upToToday;
  if (globals.CurCustNum > 0) {
    lblBalDue.SetCaption(convert.CurrencyText(globals.oClient->ClientBal(globals.CurCustNum, upToToday)));
  }
  const bool owing = globals.oClient->ClientBal(globals.CurCustNum, upToToday) > Currency();
  lblBalDue.SetForeColor(owing ? Colour::Red : Colour::Black);
}

// A client that could not be read has the number 0, and none is shown.
void Profile::SetForm() {
  Trapped("Profile.SetForm -", [&] {
    const Object<Client> client = globals.oClient;
    lblCustNum.SetCaption(client->CustNum == 0 ? "" : convert.ToText(std::int32_t{client->CustNum}));
    notes_ = client->Notes;
    for (const Bound& bound : kBound) (this->*bound.box).SetText((*client).*bound.property);
    cmbPmtType1.SetText(client->PaymentType1);
    cmbPmtType2.SetText(client->PaymentType2);
    txtDiscount.SetText(convert.ToText(client->Discount));
  });
}

void Profile::ClearForm() {
  Trapped("Profile.ClearForm -", [&] {
    lblCustNum.SetCaption("");
    lblBalDue.SetCaption("");
    for (const Bound& bound : kBound) (this->*bound.box).SetText("");
    cmbPmtType1.SetText("");
    cmbPmtType2.SetText("");
    txtDiscount.SetText("");
  });
}

void Profile::AddPaymentTypes() {
  const auto types = globals.rsPaymentTypes.Share();
  for (globals.rsPaymentTypes->MoveFirst(); !types->Eof(); types->MoveNext()) {
    cmbPmtType1.AddItem(types->Text("Type"));
    cmbPmtType2.AddItem(types->Text("Type"));
  }
}

std::int32_t Profile::NumberShown() const {
  return ValLong(lblCustNum.Caption());
}

std::string Profile::NameShown() const {
  return txtLname.Text() + ", " + txtFname.Text();
}

// Saving.

void Profile::btnSave_Click() {
  Save();
}

/// True if the client is stored. After a refusal the saving goes on as if it were.
bool Profile::Save() {
  bool stored = false;
  Trapped("Profile.btnSave_Click -", [&] {
    TakeFromControls();
    globals.oClient->OpenCn();
    stored = globals.oClient->SaveClientAccess(NumberShown());
    if (stored) numberIsUnsaved_ = false;
    client_ = {NumberShown(), NameShown()};
    SelectClient(program, client_);
    globals.NewClientMode = false;
    ShowNotice();
    if (globals.RefreshNeeded) {
      RefreshCustList(program);
      globals.RefreshNeeded = false;
    }
    screens.Show(Customer::kName);
    globals.oClient->CloseCn();
    screens.Unload(screen::kCustomerSaved);
    Changed = false;
    ShowSaved(stored);
  });
  return stored;
}

// Notes come from the client read: the shared object holds another one by now, if anyone has read one.
void Profile::TakeFromControls() {
  if (NumberShown() == 0) Raise(ErrorNumber::InvalidProcedureCall);
  const Object<Client> client = globals.oClient;
  client->CustNum = NumberShown();
  client->Notes = notes_;
  for (const Bound& bound : kBound) (*client).*bound.property = (this->*bound.box).Text();
  client->PaymentType1 = cmbPmtType1.Text();
  client->PaymentType2 = cmbPmtType2.Text();
  client->Discount = convert.ToDouble(txtDiscount.Text());
}

void Profile::ShowNotice() {
  Refresh();
  screens.Show(screen::kCustomerSaved, {.owner = this});
  desktop.DoEvents();
  desktop.Wait(1);
}

/// Asks whether to save what was changed, and saves on Yes. Cancel as well if that was refused, or if the user has
/// closed the screen while the notice of the save was up.
Answer Profile::OfferToSave() {
  SelectClient(program, {NumberShown(), NameShown()});
  const Answer answer = AskYesNoCancel("Save Changes to " + globals.CurClientName + "?", "Save Client Pofile?");
  if (answer == Answer::Yes && !Save()) {
    Changed = true;
    return Answer::Cancel;
  }
  return IsLoaded() ? answer : Answer::Cancel;
}

void Profile::btnExit_Click() {
  Trapped("Profile.btnExit_Click -", [&] {
    if (Changed && OfferToSave() == Answer::Cancel) return;
    Changed = false;
    Unload();
  });
}

void Profile::btnNewCustomer_Click() {
  Trapped("Profile.btnNewCustomer_Click -", [&] {
    if (!screens.Touch<Customer>().HasClients()) return;
    if (Changed && OfferToSave() == Answer::Cancel) return;
    Changed = false;
    globals.NewClientMode = true;
    SelectClient(program, {});
    ClearForm();
    // Adds the payment types to the combos once more.
    Form_Load();
    SSTab1.SetTab(0);
    txtFname.SetFocus();
  });
}

void Profile::btnNewInvoice_Click() {
  if (SavedForInvoice() && screens.Touch<Customer>().HasClients()) StartNewInvoice(program, client_);
}

bool Profile::SavedForInvoice() {
  if (!Changed) return true;
  const Answer answer = OfferToSave();
  if (answer == Answer::No && globals.NewClientMode) {
    desktop.Say("New Client data must be saved to enter invoice.");
    return false;
  }
  if (answer == Answer::Cancel) return false;
  Changed = false;
  return true;
}

void Profile::btnDelete_Click() {
  Trapped("Profile.btnDelete_Click -", [&] {
    if (!screens.Touch<Customer>().HasClients() || globals.NewClientMode) return;
    SelectClient(program, client_);
    DeleteClient(program, client_);
    // No closes the profile too.
    Unload();
  });
}

// Copying.

void Profile::btnSame_Click() {
  Trapped("Profile.btnSame_Click -", [&] {
    for (const Counterparts& boxes : kCounterparts) (this->*boxes.billing).SetText((this->*boxes.client).Text());
  });
}

void Profile::Command1_Click() {
  OptCust.SetValue(true);
  SetShippingInfo();
}

void Profile::Command2_Click() {
  OptBilling.SetValue(true);
  SetShippingInfo();
}

void Profile::SetShippingInfo() {
  Trapped("Profile.SetShippingInfo -", [&] {
    for (const Counterparts& boxes : kCounterparts) {
      if (!boxes.shipping) continue;
      if (OptBilling.Value()) (this->*boxes.shipping).SetText((this->*boxes.billing).Text());
      if (OptCust.Value()) (this->*boxes.shipping).SetText((this->*boxes.client).Text());
    }
  });
}

void Profile::Form_Unload() {
  globals.NewClientMode = false;
  // A number that no client got must not stay selected.
  if (numberIsUnsaved_ && globals.CurCustNum == NumberShown()) {
    const auto* customer = screens.Find<Customer>();
    SelectClient(program, customer ? customer->MarkedClient() : ClientShown());
  }
}

}  // namespace norvane
