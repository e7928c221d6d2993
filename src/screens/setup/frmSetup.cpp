#include "screens/setup/frmSetup.h"

#include <utility>

#include "data/cSetup.h"
#include "screens/setup/PaymentCategories.h"
#include "screens/setup/ShippingTypes.h"

namespace norvane {

frmSetup::frmSetup(Program& host) : Form(host, kName, {.caption = "Setup", .resizable = false}) {
  using namespace layout;
  SetLayout(Column(
      {Group(Frame1,
             Fields({Field("Name:", txtCoName), Field("Address:", txtCoAddress1), Field("Address2:", txtCoAddress2),
                     Field("City:", Row({txtCoCity, Field("State:", txtCoState), Field("Zip Code:", TxtCoZipCode)})),
                     Field("Phone:", Row({txtCoPhone, Field("Fax:", txtCoFax)})), Field("Website:", txtCoWebSite),
                     Field("State Tax Rate %:", Row({txtCoStateTaxRate, Space()}))})),
       Strip({btnPayments, btnShipping, Space(), btnExit})}));
  SetExitButton(btnExit);
  for (TextBox* box : {&txtCoName, &txtCoAddress1, &txtCoAddress2, &txtCoCity, &txtCoState, &TxtCoZipCode, &txtCoPhone,
                       &txtCoFax, &txtCoWebSite, &txtCoStateTaxRate}) {
    box->Change = [this] { SetupChanged = true; };
  }
  btnPayments.Click = [this] { screens.Show(PaymentCategories::kName, {.owner = this, .modal = true}); };
  btnShipping.Click = [this] { screens.Show(ShippingTypes::kName, {.owner = this, .modal = true}); };
  btnExit.Click = [this] { btnExit_Click(); };
}

// Filling the boxes counts as a change, so in ordinary use the exit saves. The connection stays open until then, or
// until another screen closes it.
void frmSetup::Form_Load() {
  Trapped("frmsetup.Form_Load -", [&] {
    const Object<cSetup> company = globals.oSetup;
    company->OpenCn();
    wasRead_ = company->GetCompanyInfo();
    if (!wasRead_) return;
    txtCoName.SetText(company->Name);
    txtCoAddress1.SetText(company->Address1);
    txtCoAddress2.SetText(company->Address2);
    txtCoCity.SetText(company->City);
    txtCoState.SetText(company->State);
    TxtCoZipCode.SetText(company->ZipCode);
    txtCoPhone.SetText(company->Phone);
    txtCoFax.SetText(company->Fax);
    txtCoWebSite.SetText(company->WebSite);
    txtCoStateTaxRate.SetText(convert.ToText(company->Statetaxrate));
  });
}

void frmSetup::btnExit_Click() {
  Trapped("frmsetup.btnexit_Click -", [&] {
    if (std::exchange(SetupChanged, false)) Save();
    Unload();
  });
}

// Without the company read, a save would replace what is stored with little more than what was typed.
void frmSetup::Save() {
  if (!wasRead_) Raise(ErrorNumber::InvalidProcedureCall);
  const Object<cSetup> company = globals.oSetup;
  company->Name = txtCoName.Text();
  company->Address1 = txtCoAddress1.Text();
  company->Address2 = txtCoAddress2.Text();
  company->City = txtCoCity.Text();
  company->State = txtCoState.Text();
  company->ZipCode = TxtCoZipCode.Text();
  company->Phone = txtCoPhone.Text();
  company->Fax = txtCoFax.Text();
  company->WebSite = txtCoWebSite.Text();
  company->Statetaxrate = convert.LeadingNumber(txtCoStateTaxRate.Text());
  company->OpenCn();
  company->SaveCompanyInfo();
  company->CloseCn();
}

}  // namespace norvane
