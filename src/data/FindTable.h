#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// What can be found.
enum class FindKind { Client, Invoice, Payment, Item, Vendor, Entry };
inline constexpr std::size_t kFindKinds = 6;

/// The records of one kind as they are searched and shown, one after the other in two texts.
///
/// A record's searched text is its fields as plain letters, each after a separator, the first two being its name and
/// number; then its telephones in digits alone. It ends as it begins, so that a field is what separators enclose.
class FindTable {
 public:
  static constexpr char kField = '\x1f';
  static constexpr char kTelephone = '\x1e';
  static constexpr bool IsSeparator(char c) { return c == kField || c == kTelephone; }

  /// Records come in the order of their numbers. `shown` is a row for a grid.
  void Add(std::int32_t number, std::initializer_list<std::string_view> fields,
           std::initializer_list<std::string_view> telephones, std::string_view shown);

  std::size_t Count() const { return numbers_.size(); }
  std::int32_t Number(std::size_t record) const { return numbers_[record]; }
  std::string_view Text(std::size_t record) const { return Slice(text_, textStarts_, record); }
  std::string_view Shown(std::size_t record) const { return Slice(shown_, shownStarts_, record); }
  /// The first cell of what is shown of the record of that number; empty if there is none.
  std::string_view NameOf(std::int32_t number) const;

  /// All searched texts, where a record begins in them, and the record of a place.
  std::string_view Texts() const { return text_; }
  std::size_t Start(std::size_t record) const { return record < Count() ? textStarts_[record] : text_.size(); }
  std::size_t RecordAt(std::size_t place) const;

 private:
  static std::string_view Slice(const std::string& all, const std::vector<std::size_t>& starts, std::size_t record);

  std::vector<std::int32_t> numbers_;
  std::string text_, shown_;
  std::vector<std::size_t> textStarts_, shownStarts_;
};

using FindTables = std::array<FindTable, kFindKinds>;

}  // namespace norvane
