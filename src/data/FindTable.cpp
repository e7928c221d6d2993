#include "data/FindTable.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/TextFolding.h"

namespace norvane {

void FindTable::Add(std::int32_t number, std::initializer_list<std::string_view> fields,
                    std::initializer_list<std::string_view> telephones, std::string_view shown) {
  numbers_.push_back(number);
  textStarts_.push_back(text_.size());
  shownStarts_.push_back(shown_.size());
  shown_ += shown;
  for (const std::string_view field : fields) (text_ += kField) += PlainLetters(field);
  for (const std::string_view telephone : telephones) {
    text_ += kTelephone;
    std::copy_if(telephone.begin(), telephone.end(), std::back_inserter(text_), IsDigit);
  }
  text_ += kField;
}

std::string_view FindTable::Slice(const std::string& all, const std::vector<std::size_t>& starts, std::size_t record) {
  const std::size_t end = record + 1 < starts.size() ? starts[record + 1] : all.size();
  return std::string_view(all).substr(starts[record], end - starts[record]);
}

std::string_view FindTable::NameOf(std::int32_t number) const {
  const auto found = std::lower_bound(numbers_.begin(), numbers_.end(), number);
  if (found == numbers_.end() || *found != number) return {};
  const std::string_view shown = Shown(static_cast<std::size_t>(found - numbers_.begin()));
  return shown.substr(0, shown.find('\t'));
}

std::size_t FindTable::RecordAt(std::size_t place) const {
  return static_cast<std::size_t>(std::upper_bound(textStarts_.begin(), textStarts_.end(), place) -
                                  textStarts_.begin()) -
         1;
}

}  // namespace norvane
