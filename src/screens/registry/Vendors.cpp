#include "screens/registry/Vendors.h"

#include <algorithm>

#include "core/Val.h"
#include "data/Vendor.h"
#include "screens/registry/GL.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

struct Bound {
  TextBox Vendors::*box;
  std::string Vendor::*property;
};

/// Which box shows which property; the discount, a number, is apart.
constexpr Bound kBound[] = {
    {&Vendors::txtCompany, &Vendor::Company},   {&Vendors::txtAddress, &Vendor::Address1},
    {&Vendors::txtAddress2, &Vendor::Address2}, {&Vendors::txtCity, &Vendor::City},
    {&Vendors::txtState, &Vendor::State},       {&Vendors::txtZipCode, &Vendor::ZipCode},
    {&Vendors::txtPhone, &Vendor::Phone},       {&Vendors::txtCellPhone, &Vendor::CelPhone},
    {&Vendors::txtFax, &Vendor::Fax},           {&Vendors::txtEmail, &Vendor::Email},
    {&Vendors::txtWebPage, &Vendor::WebPage},   {&Vendors::txtPOnum, &Vendor::POnum},
    {&Vendors::txtNotes, &Vendor::Notes},
};

/// A name that is looked up in order not to be found: what comes is an empty vendor under the next free number.
constexpr const char* kNoCompany = "0";

}  // namespace

Vendors::Vendors(Program& host) : Form(host, kName, {.caption = kName}) {
  using namespace layout;
  SetLayout(Column(
      {Strip({Field("Search:", cmbVendors), btnNewVendor, btnSave, btnDelete, btnPayments, Space(), btnExit}),
       Fields({Field("Vendor #:", lblVendorNum), Field("Company:", txtCompany)}),
       Group("Address",
             Fields({Field("Street:", txtAddress), Field("Street2:", txtAddress2),
                     Field("City:", Row({txtCity, Field("State:", txtState), Field("Zip Code:", txtZipCode)}))})),
       Group("Contact", Fields({Field("Phone:", txtPhone), Field("Cell Phone:", txtCellPhone), Field("Fax:", txtFax),
                                Field("E-Mail:", txtEmail), Field("Web Page:", txtWebPage)},
                               2)),
       Group("Purchasing",
             Fields({Field("Purchase Order #:", Row({txtPOnum, Field("Discount %:", txtDiscount), Space()})),
                     Field("Notes:", txtNotes)})),
       Space()}));
  SetExitButton(btnExit);
  cmbVendors.Click = [this] { cmbVendors_Click(); };
  btnNewVendor.Click = [this] { btnNewVendor_Click(); };
  btnSave.Click = [this] { btnSave_Click(); };
  btnDelete.Click = [this] { btnDelete_Click(); };
  WireTo(btnPayments, screen::kGL, [this] { btnPayments_Click(); });
  btnExit.Click = [this] { btnExit_Click(); };
  const auto changed = [this] { VendorChanged = true; };
  for (const Bound& bound : kBound) (this->*bound.box).Change = changed;
  txtDiscount.Change = changed;
}

// Loading.

void Vendors::Form_Load() {
  Trapped("Vendors.Form_Load -", [&] {
    MakeVendorList();
    GetVendorDetails(cmbVendors.Text().empty() ? kNoCompany : cmbVendors.Text());
    globals.CurVendorNum = ValLong(lblVendorNum.Caption());
    cmbVendors.SetText("");
    // Filling the boxes has raised their Change.
    VendorChanged = false;
  });
}

// The list ends on its first entry, which is no pick: callers load it or don't.
void Vendors::MakeVendorList() {
  filling_ = true;
  Trapped("Vendors.MakeVendorList -", [&] {
    const Object<Vendor> vendor = globals.oVendor;
    vendor->OpenCn();
    globals.rsVendors = vendor->GetAllVendors();
    vendor->CloseCn();
    cmbVendors.Clear();
    const Object<Recordset> vendors = globals.rsVendors;
    for (; !vendors->Eof(); vendors->MoveNext()) cmbVendors.AddItem(vendors->Text("Company"));
    if (!cmbVendors.Items().empty()) cmbVendors.SetText(cmbVendors.Items().front());
  });
  filling_ = false;
}

void Vendors::GetVendorDetails(const std::string& vendorName) {
  Trapped("Vendors.GetVendorDetails -", [&] {
    const Object<Vendor> vendor = globals.oVendor;
    vendor->OpenCn();
    vendor->GetVendor(vendorName);
    vendor->CloseCn();
    lblVendorNum.SetCaption(convert.ToText(std::int32_t{vendor->VendorNum}));
    for (const Bound& bound : kBound) (this->*bound.box).SetText((*vendor).*bound.property);
    txtDiscount.SetText(convert.ToText(double{vendor->Discount}));
    companyRead_ = vendor->Company;
  });
}

void Vendors::ClearForm() {
  Trapped("Vendors.ClearForm -", [&] {
    lblVendorNum.SetCaption("");
    for (const Bound& bound : kBound) (this->*bound.box).SetText("");
    txtDiscount.SetText("");
  });
}

// Another vendor.

// A save on the way fills the list again, which empties its text.
void Vendors::cmbVendors_Click() {
  if (filling_) return;
  const std::string company = cmbVendors.Text();
  if (!company.empty()) {
    if (!MayLeave()) return cmbVendors.SetText("");
    GetVendorDetails(company);
  }
  VendorChanged = false;
}

bool Vendors::PickVendor(const std::string& company) {
  const auto& items = cmbVendors.Items();
  const auto found = std::find(items.begin(), items.end(), company);
  if (found != items.end()) cmbVendors.UserPick(static_cast<int>(found - items.begin()));
  return found != items.end();
}

void Vendors::btnNewVendor_Click() {
  Trapped("Vendors.btnNewVendor_Click -", [&] {
    if (!MayLeave()) return;
    ClearForm();
    GetVendorDetails(kNoCompany);
    cmbVendors.SetText("");
    txtCompany.SetFocus();
    VendorChanged = false;
  });
}

/// Asks whether to save what was changed, and saves on Yes. False if the user stays with the vendor shown: on Cancel,
/// and if the save was refused.
bool Vendors::MayLeave() {
  if (!VendorChanged) return true;
  const Answer answer = AskYesNoCancel("Save Changes to " + txtCompany.Text() + "?", "Save Vendor Pofile?");
  if (answer != Answer::Yes) return answer == Answer::No;
  btnSave_Click();
  VendorChanged = !stored_;
  return stored_;
}

// Saving.

void Vendors::btnSave_Click() {
  stored_ = false;
  Trapped("Vendors.btnSave_Click -", [&] {
    if (txtCompany.Text().empty()) {
      desktop.Ask({.text = "Enter company name before saving.", .icon = Icon::Information});
    } else {
      SaveVendor();
    }
    VendorChanged = false;
    cmbVendors.SetText("");
  });
}

// The notice comes whether the store took the vendor or not.
void Vendors::SaveVendor() {
  const Object<Vendor> vendor = globals.oVendor;
  vendor->VendorNum = ValLong(lblVendorNum.Caption());
  for (const Bound& bound : kBound) (*vendor).*bound.property = (this->*bound.box).Text();
  vendor->Discount = convert.LeadingNumber(txtDiscount.Text());
  vendor->OpenCn();
  stored_ = vendor->SaveVendorAccess(vendor->VendorNum);
  if (stored_) companyRead_ = vendor->Company;
  desktop.DoEvents();
  screens.Show(screen::kVendorSaved, {.owner = this, .modal = true});
  desktop.DoEvents();
  vendor->CloseCn();
  MakeVendorList();
  if (GL* registry = screens.Find<GL>(); registry && HasVendors()) registry->OfferVendors();
}

// Deleting.

// The name is the one in the table, whose entries go along, not what was typed over it.
void Vendors::btnDelete_Click() {
  Trapped("Vendors.btnDelete_Click -", [&] {
    const std::string company = companyRead_.empty() ? txtCompany.Text() : companyRead_;
    if (HasVendors() && AskYesNo("Do you wish to do this?", "Delete Vendor ... " + company + "?")) DeleteVendor();
    cmbVendors.SetText("");
  });
}

// An open registry no longer has the vendor's entries.
void Vendors::DeleteVendor() {
  const Object<Vendor> vendor = globals.oVendor;
  vendor->OpenCn();
  vendor->DeleteVendor(ValLong(lblVendorNum.Caption()));
  vendor->CloseCn();
  MakeVendorList();
  if (!cmbVendors.Text().empty()) GetVendorDetails(cmbVendors.Text());
  VendorChanged = false;
  if (GL* registry = screens.Find<GL>()) registry->SetPayments();
}

// Leaving.

void Vendors::btnPayments_Click() {
  Trapped("Vendors.btnPayments_Click -", [&] {
    if (HasVendors()) {
      screens.Show(screen::kGL);
    } else {
      desktop.Ask({.text = "Enter a new Vendor before entering Vendor Payments.", .icon = Icon::Information});
    }
  });
}

void Vendors::btnExit_Click() {
  Trapped("Vendors.btnExit_Click -", [&] {
    if (!MayLeave()) return;
    VendorChanged = false;
    Unload();
  });
}

}  // namespace norvane
