#include "reports/Headings.h"

#include "data/Client.h"
#include "data/cSetup.h"

namespace norvane {

namespace {

std::string Prefixed(const char* prefix, const std::string& text) {
  return text.empty() ? text : prefix + text;
}

std::string Place(const std::string& city, const std::string& state, const std::string& zipCode) {
  return city + ", " + state + " " + zipCode;
}

void WriteBold(pages::DocumentBuilder& document, const std::string& text, const char* left, const char* top,
               const char* width) {
  document.SetBold(true);
  document.WriteTextBox(text, left, top, width, ".25in");
  document.SetBold(false);
}

}  // namespace

CompanyHeading TakeCompanyHeading(const Object<cSetup>& setup) {
  setup->OpenCn();
  setup->GetCompanyInfo();
  CompanyHeading company{setup->Name,
                         setup->Address1,
                         setup->City,
                         setup->State,
                         setup->ZipCode,
                         Prefixed("Web: ", setup->WebSite),
                         Prefixed("Phone: ", setup->Phone),
                         Prefixed("Fax: ", setup->Fax)};
  setup->CloseCn();
  return company;
}

// Without phone or fax the slash between them remains; Address2 isn't printed.
void WriteCompanyHeading(pages::DocumentBuilder& document, const CompanyHeading& company,
                         const std::string& firstLine) {
  document.SetAlignment(pages::Alignment::Centre);
  WriteBold(document, firstLine, "2in", "0.25in", "4in");
  document.WriteTextBox(company.Address1 + "\n" + Place(company.City, company.State, company.ZipCode) + "\n" +
                            company.Phone + " / " + company.Fax + "\n" + company.WebSite,
                        "2in", "0.5in", "4in", "1in");
  document.WriteParagraph("");
  document.SetAlignment(pages::Alignment::Left);
}

void WriteAddress(pages::DocumentBuilder& document, const char* title, const char* left, const Address& address) {
  WriteBold(document, title, left, "1.5in", "1in");
  document.WriteTextBox(address.fname + " " + address.lname + "\n" + address.address1 + "\n" +
                            Place(address.city, address.state, address.zipCode) + "\n" + address.homePhone,
                        left, "1.75in", "3.5in", "1.25in");
}

void ReadClient(const Object<Client>& client, std::int32_t custNum) {
  client->OpenCn();
  client->GetClient(custNum);
  client->CloseCn();
}

void WriteBillTo(pages::DocumentBuilder& document, const Client& client) {
  WriteAddress(document, "Bill To:", "0.5in",
               {client.BillFname, client.BillLname, client.BillAddress1, client.Billcity, client.BillState,
                client.BillZipCode, client.BillHomePhone});
}

void WriteStatementHead(pages::DocumentBuilder& document, const CompanyHeading& company, const Client& client) {
  WriteCompanyHeading(document, company, company.Name);
  WriteBillTo(document, client);
  document.WriteParagraph("");
}

std::string MailAddressOf(const Client& client) {
  return client.BillEmail.empty() ? client.Email : client.BillEmail;
}

}  // namespace norvane
