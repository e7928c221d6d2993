#include "data/Vendor.h"

#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kVendors{"tb_Vendor", "VendorNum"};

}  // namespace

Object<Recordset> Vendor::GetAllVendors() {
  return List("Vendor.GetAllVendors -", "select company, vendornum from tb_Vendor order by company");
}

void Vendor::GetVendor(const std::string& company) {
  Trapped("Vendor.GetVendor -", [&] {
    const auto row =
        ReadRecord(sql::Statement("select * from tb_Vendor where Company = '", company, "'"), [this] { Clear(); });
    if (row->Eof()) {
      GetNewVendorNum();
      Blank();
    } else {
      ReadVendor(*row);
    }
  });
}

void Vendor::Blank() {
  for (std::string* text : {&Address1, &Address2, &City, &State, &ZipCode, &Phone, &CelPhone, &Fax, &Email, &WebPage,
                            &Notes, &Company, &POnum}) {
    text->clear();
  }
  Discount = 0;
}

void Vendor::Clear() {
  VendorNum = 0;
  Blank();
}

void Vendor::ReadVendor(const Recordset& row) {
  VendorNum = row.Long("VendorNum");
  Address1 = row.Text("Address1");
  Address2 = row.Text("Address2");
  City = row.Text("City");
  State = row.Text("State");
  ZipCode = row.Text("ZipCode");
  Phone = row.Text("Phone");
  CelPhone = row.Text("CelPhone");
  Fax = row.Text("Fax");
  Email = row.Text("Email");
  WebPage = row.Text("WebPage");
  Notes = row.Text("Notes");
  Discount = row.Double("Discount");
  Company = row.Text("Company");
  POnum = row.Text("POnum");
}

// The ledger goes first: if it can't be deleted the vendor stays, and its entries keep a name that exists.
void Vendor::DeleteVendor(std::int32_t vendorNum) {
  Trapped("Vendor.DeleteVendor -", [&] {
    const std::string company = CompanyOf(vendorNum);
    Run(sql::Statement("delete * from tb_gl where vendor = '", company, "'"));
    Run(sql::Statement("delete * from tb_Vendor where VendorNum = ", vendorNum));
  });
}

Currency Vendor::VendorBal(std::int32_t vendorNum) {
  return Result("Vendor.VendorBal -", [&] {
    const std::string company = CompanyOf(vendorNum);
    const auto sum = Read(sql::Statement("SELECT Sum(Amount) AS SumOfPay FROM tb_gl where Vendor='", company, "'"));
    return sum->Eof() ? Currency() : sum->Currency("SumOfPay");
  });
}

std::string Vendor::CompanyOf(std::int32_t vendorNum) {
  return Read(sql::Statement("select * from tb_Vendor where VendorNum = ", vendorNum))->Text("Company");
}

bool Vendor::SaveVendorAccess(std::int32_t vendorNum) {
  return Trapped("Vendor.SaveVendorAccess -", [&] {
    SaveUnder(kVendors, vendorNum, VendorNum, [&] {
      Replace(
          sql::Statement("Delete * from tb_Vendor where VendorNum = ", vendorNum),
          sql::Insert("Insert into tb_Vendor (VendorNum,Company,Address1,Address2,City, State,ZipCode,Phone,CelPhone,"
                      "Fax,Email,Webpage,Notes, POnum,Discount ) values (",
                      VendorNum, Company, Address1, Address2, City, State, ZipCode, Phone, CelPhone, Fax, Email,
                      WebPage, Notes, POnum, Discount) +
              ";");
    });
  });
}

std::string Vendor::VendorName(std::int32_t vendorNum) {
  return Result("Vendor.VendorName -", [&] {
    const auto row = Read(sql::Statement("Select fname, mname, lname from tb_Vendor where VendorNum = ", vendorNum));
    return row->Text("fname") + " " + row->Text("mname") + " " + row->Text("lname");
  });
}

std::string Vendor::VendorCompany(std::int32_t vendorNum) {
  return Result("Vendor.VendorCompany -", [&] {
    return Read(sql::Statement("Select company from tb_Vendor where VendorNum = ", vendorNum))->Text("company");
  });
}

void Vendor::GetNewVendorNum() {
  VendorNum = Result("Vendor.GetNewVendorNum -", [&] { return NextKey(kVendors); });
}

}  // namespace norvane
