#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sqlite3.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* kUsage =
    "usage: make_database SCHEMA TARGET\n"
    "\n"
    "Makes the empty database TARGET from the statements in the file SCHEMA. It is an error if TARGET exists.\n";

std::string ReadText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::stringstream text;
  text << stream.rdbuf();
  if (!stream || text.str().empty()) throw std::runtime_error("cannot read " + file.string());
  return text.str();
}

/// A file that is gone again unless it was kept under its final name.
class DraftFile {
 public:
  explicit DraftFile(std::filesystem::path target) : target_(std::move(target)), draft_(target_) {
    draft_ += ".making-" + std::to_string(getpid());
  }
  ~DraftFile() { unlink(draft_.c_str()); }
  DraftFile(const DraftFile&) = delete;
  DraftFile& operator=(const DraftFile&) = delete;

  const std::filesystem::path& Path() const { return draft_; }
  /// A link, not a renaming, since it fails where a file is.
  void Keep() const {
    if (link(draft_.c_str(), target_.c_str()) != 0) throw std::runtime_error(target_.string() + ": " + strerror(errno));
  }

 private:
  std::filesystem::path target_;
  std::filesystem::path draft_;
};

void Fill(const std::filesystem::path& file, const std::string& schema) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(opened, sqlite3_close);
  if (code != SQLITE_OK || sqlite3_exec(opened, ("BEGIN;" + schema + "COMMIT;").c_str(), nullptr, nullptr, nullptr)) {
    throw std::runtime_error(sqlite3_errmsg(opened));
  }
}

void Make(const std::filesystem::path& schema, const std::filesystem::path& target) {
  umask(S_IRWXG | S_IRWXO | S_IXUSR);  // it will hold names and card numbers
  const std::string statements = ReadText(schema);
  const DraftFile draft(target);
  Fill(draft.Path(), statements);
  draft.Keep();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  try {
    Make(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_database: %s\n", error.what());
    return 1;
  }
  return 0;
}
