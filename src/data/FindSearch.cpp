#include "data/FindSearch.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

#include "core/Characters.h"
#include "core/Conversions.h"
#include "core/TextFolding.h"
#include "core/Utf8.h"
#include "data/FindAmount.h"

namespace norvane {

namespace {

constexpr std::size_t kLongestQuery = 200;            // bytes
constexpr std::size_t kSlice = std::size_t{1} << 20;  // bytes of the texts

// How well a text fits where it occurs.
constexpr int kInside = 10;
constexpr int kBeginsWord = 20;
constexpr int kBeginsField = 30;
constexpr int kIsField = 40;
constexpr int kInNameOrNumber = 5;

bool IsTelephone(std::string_view word) {
  return std::all_of(word.begin(), word.end(),
                     [](char c) { return IsDigit(c) || std::string_view("+-./()").find(c) != std::string_view::npos; });
}

FindWord WordOf(std::string_view text, const Conversions& convert) {
  FindWord word{{std::string(text)}, {}};
  if (std::none_of(text.begin(), text.end(), IsDigit) || std::all_of(text.begin(), text.end(), IsDigit)) return word;
  if (IsTelephone(text)) std::copy_if(text.begin(), text.end(), std::back_inserter(word.digits), IsDigit);
  if (convert.IsNumeric(text)) {
    const std::string amount = FindAmount(convert.ToDouble(text));
    if (amount.find(text) != 0) word.texts.push_back(amount);
  }
  return word;
}

std::size_t Occurrence(std::string_view texts, const std::string& text, std::size_t from) {
  const void* found = ::memmem(texts.data() + from, texts.size() - from, text.data(), text.size());
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - texts.data()) : std::string_view::npos;
}

bool IsWordCharacter(char c) {
  return IsLetter(c) || IsDigit(c);
}

int QualityAt(std::string_view record, std::size_t at, std::size_t length) {
  const char before = record[at - 1];
  if (!FindTable::IsSeparator(before)) return IsWordCharacter(before) ? kInside : kBeginsWord;
  return FindTable::IsSeparator(record[at + length]) ? kIsField : kBeginsField;
}

/// 0 where the text doesn't occur from that place on.
int Quality(std::string_view record, std::string_view text, std::size_t from, std::size_t nameEnds) {
  int best = 0;
  for (std::size_t at = record.find(text, from); at != std::string_view::npos; at = record.find(text, at + 1)) {
    best = std::max(best, QualityAt(record, at, text.size()) + (at < nameEnds ? kInNameOrNumber : 0));
    if (best == kIsField + kInNameOrNumber) break;
  }
  return best;
}

int Quality(std::string_view record, const FindWord& word, std::size_t nameEnds) {
  int best = 0;
  for (const std::string& text : word.texts) best = std::max(best, Quality(record, text, 0, nameEnds));
  const std::size_t telephones = word.digits.empty() ? std::string_view::npos : record.find(FindTable::kTelephone);
  if (telephones == std::string_view::npos) return best;
  return std::max(best, Quality(record, word.digits, telephones, nameEnds));
}

/// Where the first two fields end.
std::size_t NameEnds(std::string_view record) {
  std::size_t end = 0;
  for (int field = 0; field < 2 && end != std::string_view::npos; ++field)
    end = record.find(FindTable::kField, end + 1);
  return end;
}

}  // namespace

std::vector<FindWord> FindWords(std::string_view typed, const Conversions& convert) {
  constexpr std::string_view kAround = ",;:";
  const std::string letters = PlainLetters(FirstBytes(typed, kLongestQuery));
  std::vector<FindWord> words;
  for (std::size_t at = 0; at < letters.size();) {
    const std::size_t end = std::min(letters.find(' ', at), letters.size());
    std::string_view word = std::string_view(letters).substr(at, end - at);
    while (word.size() > 1 && kAround.find(word.back()) != std::string_view::npos) word.remove_suffix(1);
    if (!word.empty()) words.push_back(WordOf(word, convert));
    at = end + 1;
  }
  return words;
}

FindSearch::FindSearch(std::shared_ptr<const FindTables> tables, std::vector<FindWord> words)
    : tables_(std::move(tables)), words_(std::move(words)) {
  for (std::size_t i = 1; i < words_.size(); ++i) {
    if (words_[i].texts.front().size() > words_[rarest_].texts.front().size()) rarest_ = i;
  }
  if (words_.empty()) kind_ = kFindKinds;
}

bool FindSearch::Step(std::size_t complete) {
  if (Done()) return false;
  const FindTable& table = (*tables_)[kind_];
  if (record_ < table.Count()) {
    const std::size_t begin = table.Start(record_);
    const std::size_t end = std::min(begin + kSlice, table.Texts().size());
    const std::size_t last = table.RecordAt(end - 1);
    SearchBetween(table, begin, table.Start(last + 1));
    record_ = last + 1;
  } else if (kind_ < complete) {
    ++kind_;
    record_ = 0;
  } else {
    return false;
  }
  return true;
}

std::size_t FindSearch::Count() const {
  return std::accumulate(counts_.begin(), counts_.end(), std::size_t{0});
}

void FindSearch::SearchBetween(const FindTable& table, std::size_t begin, std::size_t end) {
  const std::string_view texts = table.Texts().substr(0, end);
  std::vector<std::string> wanted = words_[rarest_].texts;
  if (!words_[rarest_].digits.empty()) wanted.push_back(words_[rarest_].digits);
  std::vector<std::size_t> next(wanted.size(), begin);
  std::size_t from = begin;
  for (bool isFirst = true; from < end; isFirst = false) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      if (isFirst || next[i] < from) next[i] = Occurrence(texts, wanted[i], from);
    }
    const std::size_t place = *std::min_element(next.begin(), next.end());
    if (place == std::string_view::npos) return;
    const std::size_t record = table.RecordAt(place);
    Judge(table, record);
    from = table.Start(record + 1);
  }
}

void FindSearch::Judge(const FindTable& table, std::size_t record) {
  const std::string_view text = table.Text(record);
  const std::size_t nameEnds = NameEnds(text);
  int score = 0;
  for (const FindWord& word : words_) {
    const int quality = Quality(text, word, nameEnds);
    if (quality == 0) return;
    score += quality;
  }
  ++counts_[kind_];
  std::vector<Hit>& hits = hits_[kind_];
  hits.push_back({score, record});
  if (hits.size() >= 8 * kMost) KeepBest(kind_, hits);
}

/// Of equals the one whose name is first, or the one that is latest.
bool FindSearch::IsBetter(std::size_t kind, const Hit& a, const Hit& b) const {
  if (a.score != b.score) return a.score > b.score;
  const auto what = static_cast<FindKind>(kind);
  const bool isByName = what == FindKind::Client || what == FindKind::Item || what == FindKind::Vendor;
  if (!isByName) return a.record > b.record;
  const FindTable& table = Table(what);
  const int order = table.Text(a.record).compare(table.Text(b.record));
  return order != 0 ? order < 0 : a.record < b.record;
}

void FindSearch::KeepBest(std::size_t kind, std::vector<Hit>& hits) const {
  const auto kept = hits.begin() + static_cast<std::ptrdiff_t>(std::min(kMost, hits.size()));
  std::partial_sort(hits.begin(), kept, hits.end(), [&](const Hit& a, const Hit& b) { return IsBetter(kind, a, b); });
  hits.erase(kept, hits.end());
}

std::vector<FindSearch::Group> FindSearch::Groups() const {
  std::vector<Group> groups;
  for (std::size_t kind = 0; kind < kFindKinds; ++kind) {
    if (hits_[kind].empty()) continue;
    groups.push_back({static_cast<FindKind>(kind), counts_[kind], hits_[kind]});
    KeepBest(kind, groups.back().best);
  }
  std::stable_sort(groups.begin(), groups.end(),
                   [](const Group& a, const Group& b) { return a.best.front().score > b.best.front().score; });
  return groups;
}

}  // namespace norvane
