#include "screens/setup/frmSetup.h"

#include "core/Val.h"
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

// Filling the boxes counts as a change, so in ordinary use the exit saves. The connection stays open until then.
void frmSetup::Form_Load() {
  Trapped("frmsetup.Form_Load -", [&] {
    const Object<cSetup> company = globals.oSetup;
    company->OpenCn();
    company->GetCompanyInfo();
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
    if (SetupChanged) {
      TakeFromControls();
      globals.oSetup->SaveCompanyInfo();
      globals.oSetup->CloseCn();
      SetupChanged = false;
    }
    Unload();
  });
}

void frmSetup::TakeFromControls() {
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
  company->Statetaxrate = Val(txtCoStateTaxRate.Text());
}

}  // namespace norvane
