#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "sample/Random.h"
#include "sample/Words.h"

namespace norvane::sample {

/// Telephone numbers of those kept free for fiction, 100 for each area code. No number comes twice before all have been
/// given away.
class Phones {
 public:
  explicit Phones(Random& random);
  /// A number of the town's area, or of another one where its numbers have run out.
  std::string Next(const Town& town);

 private:
  void Fill();

  Random& random_;
  std::vector<std::string> left_;
};

/// Plain letters, with a hyphen between words: accents fall off, all else that is no letter goes.
std::string PlainWords(std::string_view text);
/// The domain of a company, below the one that is reserved for examples.
std::string DomainOf(const std::string& company);
/// A private address for mail.
std::string MailOf(Random& random, std::string_view first, std::string_view last);

/// Names of companies. None comes twice before there are few left.
class Companies {
 public:
  std::string Next(Random& random);

 private:
  std::set<std::string> taken_;
};

}  // namespace norvane::sample
