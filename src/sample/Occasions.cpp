#include "sample/Occasions.h"

#include <array>
#include <cctype>
#include <vector>

namespace norvane::sample {
namespace {

using Texts = std::vector<const char*>;

// "%" is the article, "$" the season.

/// By category, from 1.
const std::array<Texts, 6>& OfClients() {
  static const std::array<Texts, 6> texts{{
      {"%, fitted and tested", "New %", "%, ready on Saturday", "% for the way to work", "%, birthday gift"},
      {"Flat tire on the way home", "New tires and tubes", "% fitted", "Wheels checked for the $", "% for a trip"},
      {"Worn chain and cables replaced", "Brakes and shifting", "% replaced", "Parts for own repair", "Noise in gears"},
      {"Lights and locks", "%, by telephone", "Gear for the $ tour", "% and fitting", "Gift for a rider"},
      {"Clothes for the $", "Helmet and gloves", "%, exchanged for size", "% for the $", "Riding clothes, two sets"},
      {"$ tune-up", "Repaired while waiting", "Yearly service", "Service before a tour", "Crash damage, see estimate"},
  }};
  return texts;
}

const std::array<Texts, 6>& OfCompanies() {
  static const std::array<Texts, 6> texts{{
      {"% for the rental fleet", "Fleet renewal, $", "Loan bicycles", "% for the visitors", "Raffle prize"},
      {"Tires for the fleet", "Tubes and tires, monthly order", "% for the team", "Wheels for the $ races",
       "Spare set"},
      {"Workshop parts, monthly order", "Drivetrains for the fleet", "% for the workshop", "Brake parts",
       "Team spares"},
      {"Lights for the $", "Locks for the racks", "% for the fleet", "Accessories for rental", "Order by e-mail"},
      {"Helmets for rental", "Team kit, $", "% for the staff", "Vests for the courier crew", "Clothes for the class"},
      {"$ service of the fleet", "On-site service day", "Repairs of the month", "Safety check", "Service contract"},
  }};
  return texts;
}

const char* SeasonOf(Day day) {
  constexpr const char* kSeasons[] = {"winter", "spring", "summer", "fall"};
  return kSeasons[MonthOf(day) % 12 / 3];
}

/// "Tire, 700 x 28, road" is a tire.
std::string ShortName(const Stock::Item& item) {
  std::string name = item.name.substr(0, item.name.find(','));
  name.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
  return name.starts_with("u-lock") ? "U-lock" : name;
}

void Fill(std::string& text, char place, const std::string& word) {
  if (const auto at = text.find(place); at != std::string::npos) text.replace(at, 1, word);
}

}  // namespace

std::string DescribeSale(Random& random, const Stock::Item& dearest, int lines, bool trade, Day day) {
  const auto& texts = trade ? OfCompanies() : OfClients();
  std::string text = random.Pick(texts[static_cast<std::size_t>(dearest.category - 1)]);
  Fill(text, '%', ShortName(dearest));
  Fill(text, '$', SeasonOf(day));
  text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
  if (lines > 4 && random.Chance(30)) text += trade ? ", part of order" : ", and odds and ends";
  return text;
}

}  // namespace norvane::sample
