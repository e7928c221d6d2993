#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/FindTable.h"

namespace norvane {

class Conversions;

/// A word to find: the texts of which one has to occur in a record, and the digits that may occur in a telephone
/// number instead, empty if there are none.
struct FindWord {
  std::vector<std::string> texts;
  std::string digits;
};

/// The words of what was typed. Amounts are read under the machine's regional settings, and a telephone number's
/// punctuation doesn't count. What is very long is cut.
std::vector<FindWord> FindWords(std::string_view typed, const Conversions& convert);

/// Finds the records in which all words occur, a slice at a time.
class FindSearch {
 public:
  /// How many of a kind are kept: the best.
  static constexpr std::size_t kMost = 50;

  struct Hit {
    int score;
    std::size_t record;
  };
  struct Group {
    FindKind kind;
    std::size_t count;  ///< of all that were found
    std::vector<Hit> best;
  };

  FindSearch(std::shared_ptr<const FindTables> tables, std::vector<FindWord> words);

  bool Done() const { return kind_ == kFindKinds; }
  /// Searches another slice, of a length that a user doesn't notice. The first `complete` kinds don't grow any more,
  /// and the search waits at the next one. False if there was nothing to search.
  bool Step(std::size_t complete = kFindKinds);
  /// How many were found so far, kept or not.
  std::size_t Count() const;
  /// What was found so far, the kind with the best hit first, and within a kind the best hit first.
  std::vector<Group> Groups() const;
  const FindTable& Table(FindKind kind) const { return (*tables_)[static_cast<std::size_t>(kind)]; }

 private:
  void SearchBetween(const FindTable& table, std::size_t begin, std::size_t end);
  void Judge(const FindTable& table, std::size_t record);
  bool IsBetter(std::size_t kind, const Hit& a, const Hit& b) const;
  void KeepBest(std::size_t kind, std::vector<Hit>& hits) const;

  std::shared_ptr<const FindTables> tables_;
  std::vector<FindWord> words_;
  std::size_t rarest_ = 0;  ///< the word that is looked for first
  std::size_t kind_ = 0;
  std::size_t record_ = 0;  ///< the next one to search
  std::array<std::vector<Hit>, kFindKinds> hits_;
  std::array<std::size_t, kFindKinds> counts_{};
};

}  // namespace norvane
