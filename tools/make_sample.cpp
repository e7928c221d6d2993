#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <exception>
#include <map>
#include <string>
#include <string_view>

#include "sample/Sample.h"

namespace {

using namespace norvane::sample;

constexpr const char* kUsage =
    "usage: make_sample DELIVERED TARGET [--seed N] [--day YYYY-MM-DD] [--clients N] [--invoices N] [--lines N]\n"
    "                   [--items N] [--payments N] [--entries N]\n"
    "\n"
    "Writes a copy of the delivered database DELIVERED, filled with a business of the size asked for, to TARGET, "
    "which\n"
    "must not exist. The dates reach up to the day, today by default. Same arguments, same bytes.\n";

int Fail(const std::string& text) {
  std::fprintf(stderr, "make_sample: %s\n%s", text.c_str(), kUsage);
  return 2;
}

Day Today() {
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  return ToDay(std::chrono::year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday);
}

template <class Number>
bool Read(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size() && number > 0;
}

bool ReadDay(std::string_view text, Day& day) {
  int year = 0;
  unsigned month = 0;
  unsigned dayOfMonth = 0;
  if (text.size() != 10 || !Read(text.substr(0, 4), year) || !Read(text.substr(5, 2), month) ||
      !Read(text.substr(8, 2), dayOfMonth))
    return false;
  const std::chrono::year_month_day date =
      std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{dayOfMonth};
  if (date.ok()) day = ToDay(date);
  return date.ok();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3 || argc % 2 == 0) return Fail("two files, then pairs of an option and its value");
  Order order{.today = Today()};
  const std::map<std::string_view, int*> sizes{
      {"--clients", &order.size.clients}, {"--invoices", &order.size.invoices}, {"--lines", &order.size.lines},
      {"--items", &order.size.items},     {"--payments", &order.size.payments}, {"--entries", &order.size.entries}};
  for (int at = 3; at < argc; at += 2) {
    const std::string_view option = argv[at];
    const std::string_view value = argv[at + 1];
    const auto size = sizes.find(option);
    const bool read = size != sizes.end()  ? Read(value, *size->second)
                      : option == "--seed" ? Read(value, order.seed)
                      : option == "--day"  ? ReadDay(value, order.today)
                                           : false;
    if (!read) return Fail(std::string(option) + " " + std::string(value) + " makes no sense");
  }
  if (order.size.lines < order.size.invoices) return Fail("every invoice needs a line");
  try {
    WriteSample(argv[1], argv[2], order);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_sample: %s\n", error.what());
    return 1;
  }
  return 0;
}
