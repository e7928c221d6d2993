#include <ctime>
#include <map>
#include <random>

#include "store/StoreTest.h"

namespace norvane {
namespace {

std::string Sql(const std::string& table, std::initializer_list<std::string> values) {
  std::string sql = "insert into " + table + " values (";
  for (const std::string& value : values) sql += value + ",";
  sql.back() = ')';
  return sql + ";";
}

std::int32_t Today() {
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  return Date::FromYearMonthDay(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday).Day();
}

/// The total as the program works it out: doubles throughout, one conversion at the end.
Currency TotalOf(Currency lines, double discount, Currency shipping, Currency interest, Currency tax) {
  const double rate = discount / 100.0;
  const double reduction = rate * lines.ToDouble();
  double total = lines.ToDouble() - reduction;
  total += shipping.ToDouble();
  total += interest.ToDouble();
  total += tax.ToDouble();
  return Currency::FromDouble(total);
}

/// Amounts and discounts that bring totals to, and very near to, the middle between two ten-thousandths.
class AwkwardBusiness {
 public:
  explicit AwkwardBusiness(unsigned seed) : random_(seed) {}

  std::int64_t Amount() {
    switch (Below(5)) {
      case 0:
        return Below(100'000'000) - 50'000'000;
      case 1:
        return Below(4'000) * 3'125;
      case 2:
        return Below(400) * 50;
      case 3:
        return Below(900'000'000'000'000);
      default:
        return Below(2'000) * 10'000;
    }
  }

  double Discount() {
    switch (Below(6)) {
      case 0:
        return static_cast<double>(Below(1'000)) / 8;
      case 1:
        return static_cast<double>(Below(100'000)) / 1'000;
      case 2:
        return static_cast<double>(Below(10'000'001)) / 100'000;
      case 3:
        return static_cast<double>(Below(3'200)) / 500;
      case 4:
        return 33.333;
      default:
        return 0;
    }
  }

  std::int64_t Charge() { return Below(3) == 0 ? Below(10'000'000) : 0; }
  std::int64_t Below(std::int64_t end) {
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(end));
  }

 private:
  std::mt19937_64 random_;
};

std::string Exact(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", value);
  return text;
}

TEST_F(StoreTest, SavedBalancesAgreeWithTheProgramsArithmetic) {
  constexpr int kClients = 8'000;
  AwkwardBusiness business(20'240'105);
  std::map<std::int32_t, Currency> expected;
  std::string statements;
  for (int client = 1; client <= kClients; ++client) {
    const std::string key = std::to_string(client);
    statements += "insert into tb_Client (CustNum) values (" + key + ");";
    Currency lines;
    const std::int64_t count = business.Below(3);
    for (int line = 0; line < count; ++line) {
      const std::int64_t amount = business.Amount();
      lines += Currency::FromTenThousandths(amount);
      const std::string number = std::to_string(client * 10 + line);
      statements += Sql("tb_trans", {number, key, "1", "1.0", std::to_string(amount), "''", "'0'", "null"});
    }
    const double discount = business.Discount();
    const std::int64_t tax = business.Charge();
    const std::int64_t shipping = business.Charge();
    const std::int64_t interest = business.Charge() - business.Charge();
    statements += Sql("tb_Invoice", {key, key, "45000", "''", Exact(discount), std::to_string(tax),
                                     std::to_string(shipping), "0", "''", "''", std::to_string(interest), "''", "''"});
    expected[client] = TotalOf(lines, discount, Currency::FromTenThousandths(shipping),
                               Currency::FromTenThousandths(interest), Currency::FromTenThousandths(tax));
  }
  database.Execute(statements);

  const auto rows = Read("SELECT ClientBals.CustNum as CustNum, ClientBals.Balance as Bal FROM ClientBals");
  std::map<std::int32_t, Currency> balances;
  for (; !rows->Eof(); rows->MoveNext()) balances[rows->Long("CustNum")] = rows->Currency("Bal");
  for (const auto& [client, balance] : expected) {
    ASSERT_EQ(balances[client].TenThousandths(), balance.TenThousandths()) << "client " << client;
  }
}

TEST_F(StoreTest, SavedBalancesCountWhatIsOwedToday) {
  const std::string today = std::to_string(Today());
  const std::string tomorrow = std::to_string(Today() + 1);
  const std::string later = std::to_string(Today() + 2);
  const auto invoice = [](const char* number, const char* client, const std::string& day, const char* tax) {
    return Sql("tb_Invoice", {number, client, day, "''", "0.0", tax, "0", "0", "''", "''", "0", "''", "''"});
  };
  const auto payment = [](const char* number, const char* client, const std::string& day, const char* amount) {
    return Sql("tb_Receive", {number, client, "''", "''", day, amount, "''"});
  };
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname) values (1, 'Owes', 'Ann'), (2, 'Paid', 'Up'), (3, 'Credit', null),"
      " (4, 'No', 'Tax'), (5, 'Old', 'Times');" +
      invoice("1", "1", today, "70000") + invoice("2", "1", tomorrow, "30000") + invoice("3", "1", later, "5") +
      payment("1", "1", tomorrow, "10000") + payment("2", "1", later, "5") +
      // Paid to the last ten-thousandth: no row.
      invoice("4", "2", today, "12345") + payment("3", "2", today, "12345") +
      // Payments alone make a credit; an old payment counts as any other.
      payment("4", "3", "29587", "20000") +
      // A missing charge leaves the lines alone.
      invoice("5", "4", today, "null") + "insert into tb_trans (TransNum, InvoiceNum, Amount) values (1, 5, 44000);" +
      // The first day counts for nobody; the next one does.
      invoice("6", "5", "29587", "99") + invoice("7", "5", "29588", "11") +
      // Nobody's invoice is in nobody's balance.
      invoice("8", "77", today, "99"));
  EXPECT_EQ(RowsOf("SELECT ClientBals.CustNum as CustNum, ClientBals.Fullname AS FullName, ClientBals.Balance as Bal "
                   "FROM ClientBals order by ClientBals.Fullname "),
            "3|Credit, |-2;4|No, Tax|4.4;5|Old, Times|0.0011;1|Owes, Ann|9");
}

}  // namespace
}  // namespace norvane
