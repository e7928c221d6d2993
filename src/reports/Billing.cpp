#include "reports/Billing.h"

#include "core/Val.h"
#include "data/Client.h"
#include "forms/LongWork.h"
#include "store/Recordset.h"

namespace norvane {

Billing::Billing(Program& host)
    : Form(host, kName,
           {.caption = "Select criteria for printing billing statements", .width = 7'600, .height = 7'200}) {
  const layout::Node which = layout::Column({OptAll, OptClient});
  const layout::Node days = layout::Row({Label1, txtDays, Label2});
  SetLayout(layout::Column({layout::Group(Frame1, layout::Row({which, layout::Space(), days, btnPrint})),
                            layout::Stretch(layout::Group("Clients with Balance Due", layout::Stretch(CustList2)))}));
  OptAll.SetValue(true);
  txtDays.SetText("30");
  btnPrint.Click = [this] { btnPrint_Click(); };
}

void Billing::Form_Load() {
  Trapped("Billing.Form_Load -", [this] {
    CustList2.SetColumns({{"CustNum", 0},
                          {"Name", 1800},
                          {">Balance", 1000, ColumnType::Currency, "", true},
                          {"^Last Pmt Date", 1500},
                          {">Last Pmt Amt", 1500}});
    const Object<Client> client = globals.oClient;
    client->OpenCn();
    ListClients(*client);
    client->CloseCn();
  });
}

// A client without payments shows the last payment of the client above it.
void Billing::ListClients(Client& client) {
  const Object<Recordset> clients = client.ClientBals();
  Value lastDate;
  Currency lastAmount;
  LongWork work(program);
  for (; !clients->Eof(); clients->MoveNext(), work.Step()) {
    const Object<Recordset> payments = client.rsLastPayment(clients->Long("CustNum"));
    if (!payments->Eof()) {
      lastDate = payments->Field("date");
      lastAmount = payments->Currency("Amount");
    }
    CustList2.AddItem(GridRow({convert.ToText(clients->Field("CustNum")), clients->Text("Fullname"),
                               convert.CurrencyText(clients->Field("Bal")), convert.ToText(lastDate),
                               convert.CurrencyText(lastAmount)}));
  }
}

std::int16_t Billing::Days() const {
  return convert.ToInteger(Val(txtDays.Text()));
}

void Billing::btnPrint_Click() {
  Trapped("Billing.btnPrint_Click -", [this] {
    screens.Reopen(screen::kPrtBilling);
    Unload();
  });
}

}  // namespace norvane
