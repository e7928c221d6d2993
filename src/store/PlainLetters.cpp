#include "store/PlainLetters.h"

#include "store/internal/TextFolding.h"

namespace norvane {

std::string PlainLetters(std::string_view text) {
  std::string letters;
  letters.reserve(text.size());
  store::AppendPlainLetters(text, letters);
  return letters;
}

}  // namespace norvane
