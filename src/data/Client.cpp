#include "data/Client.h"

#include "core/SqlText.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kClients{"tb_Client", "CustNum"};

}  // namespace

struct Client::TextColumn {
  const char* name;
  std::string Client::*property;
};

// In the order of reading. A Null Discount ends the reading there, so the columns after it are listed separately.
const Client::TextColumn Client::kColumnsBeforeDiscount[] = {
    {"Lname", &Client::lname},
    {"Fname", &Client::fname},
    {"Mname", &Client::Mname},
    {"Address1", &Client::Address1},
    {"Address2", &Client::Address2},
    {"City", &Client::City},
    {"State", &Client::State},
    {"ZipCode", &Client::ZipCode},
    {"HomePhone", &Client::HomePhone},
    {"WorkPhone", &Client::WorkPhone},
    {"CelPhone", &Client::CelPhone},
    {"Fax", &Client::Fax},
    {"Email", &Client::Email},
    {"WebPage", &Client::WebPage},
    {"Notes", &Client::Notes},
    {"BillLname", &Client::BillLname},
    {"BillFname", &Client::BillFname},
    {"BillMname", &Client::BillMname},
    {"BillAddress1", &Client::BillAddress1},
    {"BillAddress2", &Client::BillAddress2},
    {"Billcity", &Client::Billcity},
    {"BillState", &Client::BillState},
    {"BillZipCode", &Client::BillZipCode},
    {"BillHomePhone", &Client::BillHomePhone},
    {"BillWorkPhone", &Client::BillWorkPhone},
    {"BillCelPhone", &Client::BillCelPhone},
    {"BillFax", &Client::BillFax},
    {"BillEmail", &Client::BillEmail},
    {"BillWebPage", &Client::BillWebPage},
    {"CardNum1", &Client::CardNum1},
    {"CardNum2", &Client::CardNum2},
    {"PaymentType1", &Client::PaymentType1},
    {"PaymentType2", &Client::PaymentType2},
    {"ExpDate1", &Client::ExpDate1},
    {"ExpDate2", &Client::ExpDate2},
};

const Client::TextColumn Client::kColumnsAfterDiscount[] = {
    {"Company", &Client::Company},
    {"POnum", &Client::POnum},
    {"ShipLname", &Client::ShipLname},
    {"ShipFname", &Client::ShipFname},
    {"ShipMname", &Client::ShipMname},
    {"ShipAddress1", &Client::ShipAddress1},
    {"ShipAddress2", &Client::ShipAddress2},
    {"Shipcity", &Client::Shipcity},
    {"ShipState", &Client::ShipState},
    {"ShipZipCode", &Client::ShipZipCode},
    {"ShipHomePhone", &Client::ShipHomePhone},
    {"ShipWorkPhone", &Client::ShipWorkPhone},
    {"ShipCelPhone", &Client::ShipCelPhone},
};

Object<Recordset> Client::GetAllClients() {
  return List("Client.GetAllClients -",
              "select custnum, fname, lname, homephone, workphone, celphone, email from tb_Client "
              "order by Lname , fname");
}

Object<Recordset> Client::GetClientRS(const std::string& clientName) {
  return List("Client.GetClientRS -", sql::Statement("select * from tb_Client where Lname like '", clientName, "%'"));
}

bool Client::GetClient(std::int32_t custNum) {
  bool exists = false;
  Trapped("Client.GetClient -", [&] {
    const auto row =
        ReadRecord(sql::Statement("select * from tb_Client where CustNum = ", custNum), [this] { Clear(); });
    exists = !row->Eof();
    if (exists) {
      ReadProperties(*row);
    } else {
      GetNewCustNum();
      Blank();
    }
  });
  return exists;
}

void Client::Blank() {
  for (const TextColumn& column : kColumnsBeforeDiscount) (this->*column.property).clear();
  Discount = 0;
  for (const TextColumn& column : kColumnsAfterDiscount) (this->*column.property).clear();
}

void Client::Clear() {
  CustNum = 0;
  Blank();
}

void Client::ReadProperties(const Recordset& row) {
  CustNum = row.Long("CustNum");
  for (const TextColumn& column : kColumnsBeforeDiscount) this->*column.property = row.Text(column.name);
  Discount = row.Double("Discount");
  for (const TextColumn& column : kColumnsAfterDiscount) this->*column.property = row.Text(column.name);
}

void Client::DeleteClient(std::int32_t custNum) {
  Trapped("Client.DeleteClient -", [&] {
    Run(sql::Statement("delete * from tb_Client where CustNum = ", custNum));
    Run(sql::Statement("delete * from tb_receive where CustNum = ", custNum));
    const auto invoices = Read(sql::Statement("select InvoiceNum from tb_Invoice where custnum = ", custNum));
    for (; !invoices->Eof(); invoices->MoveNext()) {
      Run(sql::Statement("delete * from tb_trans where InvoiceNum = ", invoices->Long("InvoiceNum")));
    }
    Run(sql::Statement("delete * from tb_invoice where CustNum = ", custNum));
  });
}

bool Client::SaveClientAccess(std::int32_t custNum) {
  return Trapped("Client.SaveClientAccess -", [&] {
    const std::string insertion = sql::Insert(
        "Insert into tb_client (CustNum,Lname,Fname,Mname,Address1,Address2,City, "
        "State,ZipCode,HomePhone,WorkPhone,CelPhone,Fax,Company,Email,Webpage,Notes,BillLname, "
        "BillFname,BillMname,BillAddress1,BillAddress2,BillCity,BillState,BillZipcode, "
        "BillHomePhone,BillWorkPhone,BillCelPhone,BillFax,BillEmail,BillWebpage, "
        "CardNum1,CardNum2,PaymentType1,PaymentType2,expdate1,expdate2,POnum,Discount,ShipLname,ShipFname,shipMname, "
        "shipAddress1,shipAddress2,ShipCity,ShipState,ShipZipcode,ShipHomePhone,ShipCelPhone,ShipWorkphone "
        ") values (",
        CustNum, lname, fname, Mname, Address1, Address2, City, State, ZipCode, HomePhone, WorkPhone, CelPhone, Fax,
        Company, Email, WebPage, Notes, BillLname, BillFname, BillMname, BillAddress1, BillAddress2, Billcity,
        BillState, BillZipCode, BillHomePhone, BillWorkPhone, BillCelPhone, BillFax, BillEmail, BillWebPage, CardNum1,
        CardNum2, PaymentType1, PaymentType2, ExpDate1, ExpDate2, POnum, Discount, ShipLname, ShipFname, ShipMname,
        ShipAddress1, ShipAddress2, Shipcity, ShipState, ShipZipCode, ShipHomePhone, ShipCelPhone, ShipWorkPhone);
    SaveUnder(kClients, custNum, CustNum,
              [&] { Replace(sql::Statement("Delete * from tb_Client where CustNum = ", custNum), insertion); });
  });
}

std::string Client::ClientName(std::int32_t custNum) {
  return Result("Client.ClientName -", [&] {
    const auto row = Read(sql::Statement("Select fname, mname, lname from tb_client where CustNum = ", custNum));
    return row->Text("fname") + " " + row->Text("Mname") + " " + row->Text("lname");
  });
}

void Client::GetNewCustNum() {
  CustNum = Result("Client.GetNewCustNum -", [&] { return NextKey(kClients); });
}

// The record has no notes on billing, and one of its two cards is all the procedure takes.
std::int16_t Client::SaveClient() {
  const auto text = [](const char* name, int size, const std::string& value) {
    return Parameter{name, ParameterType::Char, size, value};
  };
  RunProcedure("sp_insert_Client", {text("@CustNum", 16, sql::Text(CustNum)),
                                    text("@Lname", 50, lname),
                                    text("@Fname", 50, fname),
                                    text("@Mname", 50, Mname),
                                    text("@Address1", 50, Address1),
                                    text("@Address2", 50, Address2),
                                    text("@City", 25, City),
                                    text("@State", 2, State),
                                    text("@ZipCode", 10, ZipCode),
                                    text("@HomePhone", 15, HomePhone),
                                    text("@WorkPhone", 15, WorkPhone),
                                    text("@CelPhone", 15, CelPhone),
                                    text("@Fax", 15, Fax),
                                    text("@Email", 50, Email),
                                    text("@Webpage", 50, WebPage),
                                    text("@Notes", 256, Notes),
                                    text("@BillLname", 50, BillLname),
                                    text("@BillFname", 50, BillFname),
                                    text("@BillMname", 50, BillMname),
                                    text("@BillAddress1", 50, BillAddress1),
                                    text("@BillAddress2", 50, BillAddress2),
                                    text("@BillCity", 25, Billcity),
                                    text("@BillState", 2, BillState),
                                    text("@BillZipCode", 10, BillZipCode),
                                    text("@BillHomePhone", 15, BillHomePhone),
                                    text("@BillWorkPhone", 15, BillWorkPhone),
                                    text("@BillCelPhone", 15, BillCelPhone),
                                    text("@BillFax", 15, BillFax),
                                    text("@BillEmail", 50, BillEmail),
                                    text("@BillWebpage", 50, BillWebPage),
                                    text("@BillNotes", 256, ""),
                                    text("@BillCreditCard", 16, CardNum1)});
  return -1;
}

}  // namespace norvane
