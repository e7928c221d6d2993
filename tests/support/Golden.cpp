#include "support/Golden.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string_view>

namespace norvane {
namespace {

bool IsRewriting() {
  const char* wish = std::getenv("NORVANES_REWRITE_GOLDEN");
  return wish != nullptr && std::string_view(wish) == "1";
}

std::string Contents(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

void ExpectGolden(const std::string& name, const std::string& text) {
  const std::filesystem::path file = std::filesystem::path(NORVANES_GOLDEN_FOLDER) / name;
  if (IsRewriting()) {
    ASSERT_EQ(std::getenv("CI"), nullptr) << "golden files are never rewritten by CI";
    std::ofstream(file, std::ios::binary) << text;
    GTEST_SKIP() << "rewritten: " << name;
  }
  EXPECT_EQ(Contents(file), text) << "differs from golden/" << name;
}

}  // namespace norvane
