#include "data/FindIndex.h"

#include <algorithm>
#include <system_error>

#include "core/Characters.h"
#include "core/Conversions.h"
#include "core/FileNames.h"
#include "data/FindAmount.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr std::int64_t kRows = 1000;  // to be read at a time, about
constexpr std::int64_t kFirstWidth = kRows;
constexpr std::int64_t kWidest = std::int64_t{1} << 31;

/// Turns rows into records.
struct Filling {
  FindTables& tables;
  const Conversions& convert;

  FindTable& Of(FindKind kind) const { return tables[static_cast<std::size_t>(kind)]; }
  std::string NameOf(const Recordset& row) const {
    if (row.IsNull("CustNum")) return {};
    return std::string(Of(FindKind::Client).NameOf(row.Long("CustNum")));
  }
  std::string DateOf(const Recordset& row) const { return convert.ToText(row.Field("Date")); }
};

/// The filled ones of several texts with commas between them.
std::string Joined(std::initializer_list<std::string_view> texts) {
  std::string all;
  for (const std::string_view text : texts) {
    if (text.empty()) continue;
    if (!all.empty()) all += ", ";
    all += text;
  }
  return all;
}

/// A row for a grid: name, details, date and amount.
std::string Shown(std::string_view name, std::string_view details, std::string_view date = {},
                  std::string_view amount = {}) {
  return Concat({OneLine(name), "\t", OneLine(details), "\t", date, "\t", amount});
}

std::string AmountIn(const Recordset& row, std::string_view field) {
  return row.IsNull(field) ? std::string() : FindAmount(row.Currency(field).ToDouble());
}

void AddClient(const Filling& to, const Recordset& row) {
  const std::string name = row.Text("Lname") + ", " + row.Text("Fname");
  const std::string company = row.Text("Company");
  const std::string city = row.Text("City");
  const std::string home = row.Text("HomePhone");
  const std::string work = row.Text("WorkPhone");
  const std::string cell = row.Text("CelPhone");
  const std::string& telephone = !home.empty() ? home : !work.empty() ? work : cell;
  to.Of(FindKind::Client)
      .Add(row.Long("Number"),
           {name, row.Text("Number"), row.Text("Mname"), company, city, home, work, cell, row.Text("Email")},
           {home, work, cell}, Shown(name, Joined({company, city, telephone})));
}

void AddInvoice(const Filling& to, const Recordset& row) {
  const std::string number = row.Text("Number");
  const std::string description = row.Text("Description");
  to.Of(FindKind::Invoice)
      .Add(row.Long("Number"), {description, number, row.Text("TrackingNum")}, {},
           Shown("#" + number + " " + description, to.NameOf(row), to.DateOf(row)));
}

void AddPayment(const Filling& to, const Recordset& row) {
  const std::string check = row.Text("CheckNum");
  to.Of(FindKind::Payment)
      .Add(row.Long("Number"), {check, AmountIn(row, "Amount")}, {},
           Shown(to.NameOf(row), Joined({row.Text("Type"), check, row.Text("Notes")}), to.DateOf(row),
                 to.convert.CurrencyText(row.Field("Amount"))));
}

void AddItem(const Filling& to, const Recordset& row) {
  const std::string number = row.Text("Number");
  const std::string description = row.Text("Description");
  to.Of(FindKind::Item)
      .Add(row.Long("Number"), {description, number}, {},
           Shown(description, "#" + number, "", to.convert.CurrencyText(row.Field("Charge"))));
}

void AddVendor(const Filling& to, const Recordset& row) {
  const std::string company = row.Text("Company");
  const std::string city = row.Text("City");
  const std::string telephone = row.Text("Phone");
  const std::string cell = row.Text("CelPhone");
  to.Of(FindKind::Vendor)
      .Add(row.Long("Number"), {company, row.Text("Number"), city, telephone, cell, row.Text("Email")},
           {telephone, cell}, Shown(company, Joined({city, telephone.empty() ? cell : telephone})));
}

void AddEntry(const Filling& to, const Recordset& row) {
  const std::string payee = row.Text("Vendor");
  const std::string number = row.Text("CheckNum");
  const std::string notes = row.Text("Notes");
  const bool isDeposit = row.IsNull("Payment") || row.Currency("Payment") == Currency();
  const char* amount = isDeposit ? "Deposit" : "Payment";
  to.Of(FindKind::Entry)
      .Add(row.Long("Number"), {payee, number, notes, AmountIn(row, amount)}, {},
           Shown(payee, Joined({number, row.Text("Category"), notes}), to.DateOf(row),
                 to.convert.CurrencyText(row.Field(amount))));
}

/// How a kind is read: the highest number, the rows between two numbers, and what becomes of them. Clients are first:
/// the others show their names.
struct Source {
  const char* highest;
  const char* rows;
  const char* key;
  void (*add)(const Filling&, const Recordset&);
};
constexpr std::array<Source, kFindKinds> kSources{{
    {"select max(CustNum) as Highest from tb_Client",
     "select CustNum as Number, Lname, Fname, Mname, Company, City, HomePhone, WorkPhone, CelPhone, Email from "
     "tb_Client where ",
     "CustNum", AddClient},
    {"select max(InvoiceNum) as Highest from tb_Invoice",
     "select InvoiceNum as Number, CustNum, [Date], Description, TrackingNum from tb_Invoice where ", "InvoiceNum",
     AddInvoice},
    {"select max(TransNum) as Highest from tb_Receive",
     "select TransNum as Number, CustNum, Type, CheckNum, [Date], Amount, Notes from tb_Receive where ", "TransNum",
     AddPayment},
    {"select max(ItemNum) as Highest from tb_Inventory",
     "select ItemNum as Number, Description, Charge from tb_Inventory where ", "ItemNum", AddItem},
    {"select max(VendorNum) as Highest from tb_Vendor",
     "select VendorNum as Number, Company, City, Phone, CelPhone, Email from tb_Vendor where ", "VendorNum", AddVendor},
    {"select max(TransNum) as Highest from tb_GL",
     "select TransNum as Number, [Date], CheckNum, Vendor, Category, Payment, Deposit, Notes from tb_GL where ",
     "TransNum", AddEntry},
}};

}  // namespace

FindIndex::Stamp FindIndex::StampNow() const {
  const std::filesystem::path file = workspace_.File(kDatabaseFile);
  std::error_code missing;
  const auto written = std::filesystem::last_write_time(file, missing);
  return {written, std::filesystem::file_size(file, missing)};
}

void FindIndex::ReadIfChanged() {
  const Stamp now = StampNow();
  if (Reading() || stamp_ == now) return;
  stamp_ = now;
  fresh_ = complete_ ? std::make_shared<FindTables>() : (tables_ = std::make_shared<FindTables>());
  kind_ = 0;
  after_ = 0;
  last_ = -1;
  width_ = kFirstWidth;
}

void FindIndex::ReadSlice() {
  if (!Reading()) return;
  try {
    OpenCn();
    ReadRows();
    CloseCn();
  } catch (const RuntimeError&) {
    CloseCn();
    fresh_.reset();
    throw;
  }
}

void FindIndex::ReadRows() {
  const Source& source = kSources[kind_];
  if (last_ < 0) {
    const auto highest = Read(source.highest);
    last_ = highest->IsNull("Highest") ? 0 : highest->Long("Highest");
  }
  const std::int64_t upTo = std::min(after_ + width_, last_);
  const auto rows = Read(sql::Statement(source.rows, source.key, " > ", static_cast<std::int32_t>(after_), " and ",
                                        source.key, " <= ", static_cast<std::int32_t>(upTo)));
  const Filling to{*fresh_, workspace_.convert};
  for (; !rows->Eof(); rows->MoveNext()) source.add(to, *rows);
  after_ = upTo;
  GoOn(rows->RecordCount());
}

/// Numbers may be far apart: the fewer rows there were, the further the next slice reaches.
void FindIndex::GoOn(std::int32_t rows) {
  if (rows < kRows / 2) width_ = std::min(width_ * 4, kWidest);
  if (rows > kRows) width_ = std::max(width_ / 2, kRows);
  if (after_ < last_) return;
  after_ = 0;
  last_ = -1;
  width_ = kFirstWidth;
  if (++kind_ < kFindKinds) return;
  tables_ = std::move(fresh_);
  complete_ = true;
}

}  // namespace norvane
