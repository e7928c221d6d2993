#include <string_view>

#include "sample/Contacts.h"
#include "sample/Sample.h"
#include "sample/Words.h"

namespace norvane::sample {
namespace {

struct Address {
  std::string street, unit, city, state, zipCode;
};

Address MakeAddress(Random& random, const Town& town) {
  const int house = random.Between(20, 9989);
  return {std::to_string(house) + " " + random.Pick(Streets()),
          random.Chance(15) ? "Apt " + std::to_string(random.Between(1, 40)) : "", town.city, town.state, town.zipCode};
}

struct Card {
  std::string number, type, expires;
};

Card MakeCard(Random& random, Day today, int percent) {
  if (!random.Chance(percent)) return {};
  const int month = random.Between(1, 12);
  const int year = (YearOf(today) + random.Between(1, 4)) % 100;
  const auto twoDigits = [](int number) {
    return std::string{static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
  };
  return {random.Pick(CardNumbers()), random.Chance(70) ? "Credit Card" : "Debit Card",
          twoDigits(month) + "/" + twoDigits(year)};
}

/// Names go round without a repetition as long as there are combinations left.
struct Name {
  std::string first, middle, last;
};

Name MakeName(Random& random, int place, int start) {
  const int firsts = static_cast<int>(FirstNames().size());
  const int lasts = static_cast<int>(LastNames().size());
  constexpr int kStep = 2'741;  // prime, and no divisor of the count of combinations
  const int combination =
      static_cast<int>((static_cast<std::int64_t>(place) * kStep + start) % (std::int64_t{firsts} * lasts));
  const std::string initial(1, static_cast<char>('A' + random.Below(20)));
  return {FirstNames()[static_cast<std::size_t>(combination % firsts)], random.Chance(30) ? initial + "." : "",
          LastNames()[static_cast<std::size_t>(combination / firsts)]};
}

}  // namespace

std::vector<Client> WriteClients(Database& database, Random& random, Phones& phones, const Order& order) {
  Inserter rows(database, "tb_Client",
                "CustNum,Lname,Fname,Mname,Address1,Address2,City,State,ZipCode,HomePhone,WorkPhone,CelPhone,Fax,"
                "Company,Email,WebPage,Notes,BillLname,BillFname,BillMname,BillAddress1,BillAddress2,Billcity,"
                "BillState,BillZipCode,BillHomePhone,BillWorkPhone,BillCelPhone,BillFax,BillEmail,BillWebPage,"
                "CardNum1,CardNum2,PaymentType1,PaymentType2,ExpDate1,ExpDate2,POnum,Discount,ShipLname,ShipFname,"
                "ShipMname,ShipAddress1,ShipAddress2,Shipcity,ShipState,ShipZipCode,ShipHomePhone,ShipWorkPhone,"
                "ShipCelPhone");
  std::vector<Client> clients;
  Companies companies;
  const int start = random.Below(5'000);
  for (int place = 0; place < order.size.clients; ++place) {
    Client client{.number = kFirstKey + place, .trade = random.Chance(18)};
    const Town& town = random.Pick(Towns());
    client.taxed = std::string_view(town.state) == Towns().front().state && !(client.trade && random.Chance(25));
    client.discount = client.trade ? 10 * random.Below(3) : random.Chance(12) ? 10 : 0;

    const Name name = MakeName(random, place, start);
    const std::string company = client.trade ? companies.Next(random) : "";
    const std::string site = client.trade ? "www." + DomainOf(company) : "";
    const std::string mail =
        client.trade ? PlainWords(name.first) + "@" + DomainOf(company) : MailOf(random, name.first, name.last);
    const Address home = MakeAddress(random, town);
    // Most are billed and served where they live.
    const Address bill = random.Chance(85) ? home : MakeAddress(random, random.Pick(Towns()));
    const Address ship = random.Chance(85) ? home : MakeAddress(random, random.Pick(Towns()));
    // Some have no other telephone than the one they carry.
    const std::string homePhone = random.Chance(85) ? phones.Next(town) : "";
    const std::string workPhone = client.trade || random.Chance(35) ? phones.Next(town) : "";
    const std::string celPhone = homePhone.empty() || random.Chance(80) ? phones.Next(random.Pick(Towns())) : "";
    const std::string fax = client.trade ? phones.Next(town) : "";
    const std::string billMail = client.trade ? "accounts@" + DomainOf(company) : mail;
    const Card card = MakeCard(random, order.today, 45);
    const Card second = card.number.empty() ? Card{} : MakeCard(random, order.today, 25);
    const std::string purchaseOrder = client.trade ? "PO-" + std::to_string(random.Between(1000, 9999)) : "";
    const std::string notes = random.Chance(20) ? random.Pick(ClientNotes()) : "";
    client.card = card.number;

    rows.Add({client.number,
              name.last,
              name.first,
              name.middle,
              home.street,
              home.unit,
              home.city,
              home.state,
              home.zipCode,
              homePhone,
              workPhone,
              celPhone,
              fax,
              company,
              mail,
              site,
              notes,
              name.last,
              name.first,
              name.middle,
              bill.street,
              bill.unit,
              bill.city,
              bill.state,
              bill.zipCode,
              homePhone,
              workPhone,
              celPhone,
              fax,
              billMail,
              site,
              card.number,
              second.number,
              card.type,
              second.type,
              card.expires,
              second.expires,
              purchaseOrder,
              double(client.discount),
              name.last,
              name.first,
              name.middle,
              ship.street,
              ship.unit,
              ship.city,
              ship.state,
              ship.zipCode,
              homePhone,
              workPhone,
              celPhone});
    clients.push_back(client);
  }
  return clients;
}

}  // namespace norvane::sample
