#include "sample/Sample.h"

#include <stdexcept>
#include <system_error>

#include "sample/Words.h"

namespace norvane::sample {
namespace {

namespace fs = std::filesystem;

/// A copy under another name until it is complete, so that a run cut short leaves nothing that looks like a database.
class Draft {
 public:
  Draft(const fs::path& delivered, const fs::path& target) : target_(target), draft_(target.string() + ".partial") {
    if (fs::exists(target)) throw std::runtime_error(target.string() + " is there already, and stays as it is");
    fs::copy_file(delivered, draft_, fs::copy_options::overwrite_existing);
    fs::permissions(draft_, fs::perms::owner_read | fs::perms::owner_write);
  }
  ~Draft() {
    std::error_code ignored;
    fs::remove(draft_, ignored);
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  const fs::path& File() const { return draft_; }
  /// A link, not a renaming: it fails where a database has come up meanwhile.
  void Finish() { fs::create_hard_link(draft_, target_); }

 private:
  fs::path target_;
  fs::path draft_;
};

void Fill(Database& database, const Order& order) {
  Random random(order.seed);
  Phones phones(random);
  WriteSettings(database);
  const std::vector<Client> clients = WriteClients(database, random, phones, order);
  const std::vector<Invoice> invoices = WriteSales(database, random, order, clients);
  const std::vector<Payment> payments = WritePayments(database, random, order, clients, invoices);
  WriteLedger(database, random, phones, order, invoices, payments);
}

}  // namespace

void WriteSettings(Database& database) {
  database.Run("DELETE FROM tb_Company; DELETE FROM tb_InvCategories; DELETE FROM tb_Shipping");
  Inserter company(database, "tb_Company", "Name,Address1,Address2,City,State,ZipCode,Phone,Fax,WebSite,Statetaxrate");
  const Town& home = Towns().front();
  company.Add({"Alder Street Cycles", "1200 Alder Street", "", home.city, home.state, home.zipCode, "253-555-0100",
               "253-555-0101", "www." + DomainOf("Alder Street Cycles"), kTaxPercent});
  Inserter categories(database, "tb_InvCategories", "CatNum,Description");
  std::int64_t number = 0;
  for (const char* name : Categories()) categories.Add({++number, name});
  Inserter types(database, "tb_ExpenseTypes", "Type");
  types.Add({"Payroll"});
  Inserter shipping(database, "tb_Shipping", "Service,Option,Charge");
  for (const Shipping& way : Shippings()) shipping.Add({way.service, way.option, way.charge});
}

void WriteSample(const fs::path& delivered, const fs::path& target, const Order& order) {
  Draft draft(delivered, target);
  {
    Database database(draft.File());
    database.Run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN");
    Fill(database, order);
    database.Run("COMMIT; PRAGMA journal_mode = DELETE");
  }
  draft.Finish();
}

}  // namespace norvane::sample
