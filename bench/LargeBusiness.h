#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "sample/Sample.h"

namespace norvane::bench {

/// A business of a given size in a temporary folder of its own, which goes with this object.
class LargeBusiness {
 public:
  explicit LargeBusiness(const sample::Size& size) {
    std::string pattern = (std::filesystem::temp_directory_path() / "norvanes-bench-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    sample::Order order;
    order.size = size;
    order.today = 46'000;
    sample::WriteSample(NORVANES_DELIVERED, File(), order);
  }
  ~LargeBusiness() { std::filesystem::remove_all(folder_); }
  LargeBusiness(const LargeBusiness&) = delete;
  LargeBusiness& operator=(const LargeBusiness&) = delete;

  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path File() const { return folder_ / "norvane.mdb"; }

 private:
  std::filesystem::path folder_;
};

}  // namespace norvane::bench
