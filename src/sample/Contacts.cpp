#include "sample/Contacts.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace norvane::sample {
namespace {

constexpr const char* kAreaCodes[] = {"253", "206", "360", "425", "503", "564", "971", "208", "509", "541"};
constexpr int kNumbersOfAnArea = 100;

constexpr const char* kMailHosts[] = {
    "cedarmail.example",     "postbox.example",    "rainpost.example",      "soundnet.example", "tacoma-mail.example",
    "evergreen-net.example", "harborline.example", "northwest-web.example", "inbox.example",    "cascade-mail.example"};

constexpr std::array<std::array<std::string_view, 2>, 12> kAccents{{{"Å", "a"},
                                                                    {"á", "a"},
                                                                    {"ç", "c"},
                                                                    {"é", "e"},
                                                                    {"è", "e"},
                                                                    {"ë", "e"},
                                                                    {"í", "i"},
                                                                    {"ñ", "n"},
                                                                    {"ö", "o"},
                                                                    {"ú", "u"},
                                                                    {"ü", "u"},
                                                                    {"ø", "o"}}};

std::string WithoutAccents(std::string_view text) {
  std::string plain(text);
  for (const auto& [accented, letter] : kAccents) {
    for (auto at = plain.find(accented); at != std::string::npos; at = plain.find(accented)) {
      plain.replace(at, accented.size(), letter);
    }
  }
  return plain;
}

}  // namespace

Phones::Phones(Random& random) : random_(random) {
  Fill();
}

// The first two of the first area are the business's own.
void Phones::Fill() {
  for (const char* area : kAreaCodes) {
    for (int number = area == kAreaCodes[0] ? 2 : 0; number < kNumbersOfAnArea; ++number) {
      left_.push_back(std::string(area) + "-555-01" + (number < 10 ? "0" : "") + std::to_string(number));
    }
  }
  for (auto at = left_.size(); at > 1; --at) {
    std::swap(left_[at - 1], left_[static_cast<std::size_t>(random_.Below(static_cast<int>(at)))]);
  }
}

std::string Phones::Next(const Town& town) {
  if (left_.empty()) Fill();
  auto found = std::find_if(left_.rbegin(), left_.rend(),
                            [&](const std::string& number) { return number.starts_with(town.areaCode); });
  if (found == left_.rend()) found = left_.rbegin();
  std::string number = std::move(*found);
  left_.erase(std::prev(found.base()));
  return number;
}

std::string PlainWords(std::string_view text) {
  std::string words;
  for (const char c : WithoutAccents(text)) {
    if (std::isalpha(static_cast<unsigned char>(c))) {
      words += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (c == ' ') {
      words += '-';
    }
  }
  return words;
}

std::string DomainOf(const std::string& company) {
  return PlainWords(company) + ".example";
}

std::string MailOf(Random& random, std::string_view first, std::string_view last) {
  const std::string given = PlainWords(first);
  const std::string name = random.Chance(60) ? given + "." + PlainWords(last) : given.substr(0, 1) + PlainWords(last);
  return name + "@" + random.Pick(kMailHosts);
}

std::string Companies::Next(Random& random) {
  constexpr int kTries = 20;
  std::string name;
  for (int tried = 0; tried < kTries; ++tried) {
    name = std::string(random.Pick(CompanyWords())) + " " + random.Pick(CompanyKinds());
    if (taken_.insert(name).second) break;
  }
  return name;
}

}  // namespace norvane::sample
