#include "maintenance/Leftovers.h"

#include <vector>

#include "forms/Program.h"
#include "maintenance/KeptCopies.h"
#include "store/Recordset.h"

namespace norvane {
namespace {

using Numbers = std::vector<std::int32_t>;

/// A connection to the database for one operation.
class Access {
 public:
  Access(Program& program, const std::string& fileName) : connection_(program.engine) {
    connection_.ConnectionString = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source = \"" +
                                   (program.workspace.applicationFolder / fileName).string() + "\" ;";
    connection_.Open();
  }
  Numbers Read(const std::string& statement) {
    Recordset rows;
    rows.Open(statement, connection_, CursorType::ForwardOnly);
    Numbers numbers;
    for (; !rows.Eof(); rows.MoveNext()) numbers.push_back(rows.Long("Key"));
    return numbers;
  }
  void DeleteEach(const std::string& statement, const Numbers& keys) {
    for (const std::int32_t key : keys) {
      Recordset().Open(statement + std::to_string(key), connection_, CursorType::Dynamic, LockType::Optimistic);
    }
  }

 private:
  Connection connection_;
};

struct Leftovers {
  Numbers invoices;
  Numbers lines;
  Numbers payments;
  bool IsEmpty() const { return invoices.empty() && lines.empty() && payments.empty(); }
};

Leftovers Find(Access& access) {
  return {access.Read("select tb_Invoice.InvoiceNum as Key from tb_Invoice left join tb_Client on "
                      "tb_Invoice.CustNum = tb_Client.CustNum where tb_Invoice.CustNum > 0 and "
                      "isnull(tb_Client.CustNum)"),
          access.Read("select tb_trans.TransNum as Key from (tb_trans left join tb_Invoice on "
                      "tb_trans.InvoiceNum = tb_Invoice.InvoiceNum) left join tb_Client on "
                      "tb_Invoice.CustNum = tb_Client.CustNum where tb_trans.InvoiceNum > 0 and "
                      "(isnull(tb_Invoice.InvoiceNum) or (tb_Invoice.CustNum > 0 and isnull(tb_Client.CustNum)))"),
          access.Read("select tb_Receive.TransNum as Key from tb_Receive left join tb_Client on "
                      "tb_Receive.CustNum = tb_Client.CustNum where tb_Receive.CustNum > 0 and "
                      "isnull(tb_Client.CustNum)")};
}

bool WantsRemoval(Desktop& desktop, const Leftovers& found) {
  return desktop.Ask(
             {.text = "Some rows belong to a client or an invoice that is no longer there:\r\n\r\nInvoices:\t" +
                      std::to_string(found.invoices.size()) + "\r\nInvoice lines:\t" +
                      std::to_string(found.lines.size()) + "\r\nPayments:\t" + std::to_string(found.payments.size()) +
                      "\r\n\r\nA deletion that was cut short leaves such rows, and so does damage. Remove them?",
              .title = "Repair Data",
              .buttons = Buttons::YesNo,
              .icon = Icon::Question,
              .preselected = Answer::No}) == Answer::Yes;
}

}  // namespace

void OfferToRemoveLeftovers(Program& program, const std::string& fileName) {
  const Leftovers found = [&] {
    Access access(program, fileName);
    return Find(access);
  }();
  if (found.IsEmpty() || !WantsRemoval(program.desktop, found)) return;
  KeepCopy(program, kBeforeRemoval);
  Access access(program, fileName);
  access.DeleteEach("delete * from tb_trans where TransNum = ", found.lines);
  access.DeleteEach("delete * from tb_Receive where TransNum = ", found.payments);
  access.DeleteEach("delete * from tb_Invoice where InvoiceNum = ", found.invoices);
}

}  // namespace norvane
