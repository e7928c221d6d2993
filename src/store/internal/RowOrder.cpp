#include "store/internal/RowOrder.h"

#include <algorithm>
#include <string>

#include "core/Characters.h"
#include "core/TextFolding.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

/// One column to sort by, with the sort keys of its texts made once.
class Criterion {
 public:
  Criterion(const Rows& rows, int column, bool descending) : rows_(rows), column_(column), descending_(descending) {
    if (rows.Columns()[column].type != FieldType::Text) return;
    keys_.resize(rows.Count());
    for (std::size_t row = 0; row < rows.Count(); ++row) FoldKey(rows.Text(row, column), keys_[row]);
  }

  /// Below, at or above zero as row `a` comes before, with or after row `b`.
  int Compare(std::uint32_t a, std::uint32_t b) const { return descending_ ? -Ascending(a, b) : Ascending(a, b); }

 private:
  int Ascending(std::uint32_t a, std::uint32_t b) const {
    const bool nullA = rows_.IsNull(a, column_);
    const bool nullB = rows_.IsNull(b, column_);
    if (nullA || nullB) return static_cast<int>(nullB) - static_cast<int>(nullA);
    if (!keys_.empty()) return keys_[a].compare(keys_[b]);
    if (rows_.Columns()[column_].type == FieldType::Currency)
      return Sign(rows_.Whole(a, column_), rows_.Whole(b, column_));
    return Sign(rows_.Number(a, column_), rows_.Number(b, column_));
  }

  template <class Number>
  static int Sign(Number a, Number b) {
    return static_cast<int>(a > b) - static_cast<int>(a < b);
  }

  const Rows& rows_;
  int column_;
  bool descending_;
  std::vector<std::string> keys_;
};

/// Removes `word` from the end of the text if it is there after a space.
bool TakeLastWord(std::string_view& text, std::string_view word) {
  if (text.size() <= word.size() || !EqualNoCase(text.substr(text.size() - word.size()), word)) return false;
  if (text[text.size() - word.size() - 1] != ' ') return false;
  text = Trimmed(text.substr(0, text.size() - word.size()));
  return true;
}

Criterion ReadCriterion(const Rows& rows, std::string_view text) {
  text = Trimmed(text);
  const bool descending = TakeLastWord(text, "desc");
  if (!descending) TakeLastWord(text, "asc");
  if (text.size() > 2 && text.front() == '[' && text.back() == ']') text = text.substr(1, text.size() - 2);
  const int column = rows.Find(text);
  if (column < 0) throw error::ItemNotFound();
  return Criterion(rows, column, descending);
}

}  // namespace

void SortRows(const Rows& rows, std::string_view order, std::vector<std::uint32_t>& places) {
  std::vector<Criterion> criteria;
  for (bool more = true; more;) {
    const std::size_t comma = order.find(',');
    more = comma != std::string_view::npos;
    criteria.push_back(ReadCriterion(rows, order.substr(0, comma)));
    if (more) order.remove_prefix(comma + 1);
  }
  std::stable_sort(places.begin(), places.end(), [&](std::uint32_t a, std::uint32_t b) {
    for (const Criterion& criterion : criteria) {
      if (const int sign = criterion.Compare(a, b); sign != 0) return sign < 0;
    }
    return false;
  });
}

}  // namespace norvane::store
