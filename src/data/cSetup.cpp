#include "data/cSetup.h"

#include "data/Statement.h"

namespace norvane {

bool cSetup::GetCompanyInfo() {
  return Trapped("cSetup.GetCompanyInfo -", [&] {
    const auto row = ReadRecord("select * from tb_Company", [this] { Clear(); });
    if (row->Eof()) return;
    Name = RequiredText(*row, "Name");
    Address1 = row->Text("Address1");
    Address2 = row->Text("Address2");
    City = row->Text("City");
    State = row->Text("State");
    ZipCode = row->Text("ZipCode");
    Phone = row->Text("Phone");
    Fax = row->Text("Fax");
    WebSite = row->Text("WebSite");
    Statetaxrate = row->Double("Statetaxrate");
  });
}

void cSetup::Clear() {
  for (std::string* text : {&Name, &Address1, &Address2, &City, &State, &ZipCode, &Phone, &Fax, &WebSite}) {
    text->clear();
  }
  Statetaxrate = 0;
}

void cSetup::SaveCompanyInfo() {
  IgnoringErrors([&] { Run("Delete * from tb_Company"); },
                 [&] {
                   Run(sql::Insert(
                       "Insert into tb_Company (Name, Address1, Address2, City, State, Zipcode, phone, Fax, "
                       "website, statetaxrate) values (",
                       Name, Address1, Address2 + " ", City, State, ZipCode, Phone, Fax, WebSite, Statetaxrate));
                 });
}

Object<Recordset> cSetup::rsPaymentTypes() {
  return List("cSetup.rsPaymentTypes -", "select type from tb_PaymentTypes order by Type");
}

Object<Recordset> cSetup::rsExpenseTypes() {
  return List("cSetup.rsExpenseTypes -", "select type from tb_ExpenseTypes order by Type");
}

Object<Recordset> cSetup::rsShippingTypes() {
  return List("cSetup.rsShippingTypes -", "select * from tb_Shipping order by Service, Option");
}

void cSetup::SavePaymentType(const std::string& ptype) {
  Trapped("cSetup.SavePaymentType -", [&] { Run(sql::Insert("Insert into tb_PaymentTypes (type) values (", ptype)); });
}

void cSetup::DeletePaymentType(const std::string& paytype) {
  Trapped("cSetup.DeletePaymentType -",
          [&] { Run(sql::Statement("delete * from tb_PaymentTypes where type = '", paytype, "'")); });
}

void cSetup::SaveExpenseType(const std::string& expenseType) {
  Trapped("cSetup.SaveExpenseType -",
          [&] { Run(sql::Insert("Insert into tb_ExpenseTypes (type) values (", expenseType)); });
}

void cSetup::DeleteExpenseType(const std::string& expenseType) {
  Trapped("cSetup.DeleteExpenseType -",
          [&] { Run(sql::Statement("delete * from tb_ExpenseTypes where type = '", expenseType, "'")); });
}

void cSetup::SaveShippingType(const std::string& shipType, const std::string& shipOption, Currency charge) {
  Trapped("cSetup.SaveShippingType -", [&] {
    Replace(ShippingDeletion(shipType, shipOption),
            sql::Insert("Insert into tb_shipping (service, [option], charge) values (", shipType, shipOption, charge));
  });
}

void cSetup::DeleteShippingType(const std::string& shipType, const std::string& shipWeight) {
  Trapped("cSetup.DeleteShippingType -", [&] { Run(ShippingDeletion(shipType, shipWeight)); });
}

std::string cSetup::ShippingDeletion(const std::string& service, const std::string& option) {
  return sql::Statement("delete * from tb_shipping where service = '", service, "' and [option] = '", option, "'");
}

}  // namespace norvane
