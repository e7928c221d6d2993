#include "store/internal/DamagedFile.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

#include "core/FileSystem.h"

namespace norvane::store {
namespace {

constexpr std::size_t kFileHeader = 100;
constexpr std::string_view kMagic("SQLite format 3\0", 16);
constexpr std::uint64_t kLongestRecord = 1'000'000'000;
constexpr std::size_t kShortestCell = 4;

/// Big-endian, of up to eight bytes.
std::uint64_t Number(Bytes bytes) {
  std::uint64_t number = 0;
  for (const unsigned char byte : bytes) number = number << 8 | byte;
  return number;
}

std::uint32_t Number(Bytes bytes, std::size_t place, std::size_t length) {
  return place + length > bytes.size() ? 0 : static_cast<std::uint32_t>(Number(bytes.subspan(place, length)));
}

/// Takes a number of one to nine bytes from the front. Nothing if the bytes end before it does.
std::optional<std::uint64_t> TakeNumber(Bytes& bytes) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(bytes.size(), 9); ++i) {
    const bool isLast = i == 8 || bytes[i] < 0x80;
    number = i == 8 ? number << 8 | bytes[i] : number << 7 | (bytes[i] & 0x7F);
    if (!isLast) continue;
    bytes = bytes.subspan(i + 1);
    return number;
  }
  return std::nullopt;
}

/// The bytes of a value by its type in the record's heading; nothing for a type that isn't in use.
std::optional<std::uint64_t> LengthOf(std::uint64_t type) {
  constexpr std::uint64_t kLengths[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
  if (type < std::size(kLengths)) return kLengths[type];
  if (type < 12) return std::nullopt;
  return (type - 12) / 2;
}

StoredValue ValueOf(std::uint64_t type, Bytes bytes) {
  using Kind = StoredValue::Kind;
  if (type == 0) return {};
  if (type == 7) return {.kind = Kind::Real, .real = std::bit_cast<double>(Number(bytes))};
  if (type == 8 || type == 9) return {.kind = Kind::Whole, .whole = static_cast<std::int64_t>(type - 8)};
  if (type < 7) {
    const auto unused = static_cast<int>(64 - 8 * bytes.size());
    return {.kind = Kind::Whole, .whole = static_cast<std::int64_t>(Number(bytes) << unused) >> unused};
  }
  return {.kind = type % 2 == 1 ? Kind::Text : Kind::Blob,
          .text = {reinterpret_cast<const char*>(bytes.data()), bytes.size()}};
}

bool IsPageSize(std::uint32_t size) {
  return size >= 512 && size <= 65536 && std::has_single_bit(size);
}

}  // namespace

bool ReadRecord(Bytes bytes, Record& record) {
  record.clear();
  Bytes heading = bytes;
  const auto length = TakeNumber(heading);
  const std::size_t taken = bytes.size() - heading.size();
  if (!length || *length < taken || *length > bytes.size()) return false;
  heading = heading.first(*length - taken);
  bytes = bytes.subspan(*length);
  while (!heading.empty()) {
    const auto type = TakeNumber(heading);
    const auto size = type ? LengthOf(*type) : std::nullopt;
    if (!size || *size > bytes.size()) return false;
    record.push_back(ValueOf(*type, bytes.first(*size)));
    bytes = bytes.subspan(*size);
  }
  return bytes.empty();
}

TreePage::TreePage(std::vector<unsigned char> bytes, PageNumber number, std::uint32_t usable)
    : bytes_(std::move(bytes)), start_(number == 1 ? kFileHeader : 0), usable_(usable) {
  if (bytes_.size() < start_ + 12) return;
  switch (bytes_[start_]) {
    case 2:
    case 5:
    case 10:
    case 13:
      kind_ = static_cast<Kind>(bytes_[start_]);
      break;
    default:
      return;
  }
  const auto most = static_cast<int>((usable_ - start_ - 8) / 6);
  const auto count = static_cast<int>(Number(bytes_, start_ + 3, 2));
  hasPlausibleCount_ = count <= most;
  cells_ = std::min(count, most);
}

PageNumber TreePage::LastChild() const {
  return IsInner() ? Number(bytes_, start_ + 8, 4) : 0;
}

std::optional<TreePage::Cell> TreePage::CellAt(int index) const {
  const std::size_t pointers = start_ + (IsInner() ? 12 : 8);
  const std::size_t place = Number(bytes_, pointers + 2 * static_cast<std::size_t>(index), 2);
  if (place < pointers || place + 4 > usable_) return std::nullopt;
  Bytes rest = Bytes(bytes_).subspan(place, usable_ - place);
  Cell cell;
  if (IsInner()) {
    cell.child = Number(rest, 0, 4);
    rest = rest.subspan(4);
  }
  const std::size_t whole = rest.size() + (IsInner() ? 4 : 0);
  if (kind_ != Kind::TableInner) {
    const auto size = TakeNumber(rest);
    if (!size || *size > kLongestRecord) return std::nullopt;
    cell.size = *size;
  }
  if (IsOfTable()) {
    const auto key = TakeNumber(rest);
    if (!key) return std::nullopt;
    cell.key = static_cast<std::int64_t>(*key);
  }
  if (kind_ != Kind::TableInner && !TakePayload(cell, rest)) return std::nullopt;
  cell.length = std::max(kShortestCell, whole - rest.size());
  return cell;
}

bool TreePage::IsWhole() const {
  if (kind_ == Kind::None || !hasPlausibleCount_) return false;
  std::size_t used = Number(bytes_, start_ + 7, 1);
  for (int i = 0; i < cells_; ++i) {
    const auto cell = CellAt(i);
    if (!cell) return false;
    used += cell->length;
  }
  for (std::size_t free = Number(bytes_, start_ + 1, 2); free != 0;) {
    const std::size_t next = Number(bytes_, free, 2);
    used += Number(bytes_, free + 2, 2);
    if (next != 0 && next <= free) return false;
    free = next;
  }
  const std::uint32_t content = Number(bytes_, start_ + 5, 2);
  return used == usable_ - (content == 0 ? 65536 : content);
}

/// What doesn't fit goes on on other pages, by the format's formula.
bool TreePage::TakePayload(Cell& cell, Bytes& rest) const {
  const std::uint64_t most = kind_ == Kind::TableLeaf ? usable_ - 35 : (usable_ - 12) * 64 / 255 - 23;
  const std::uint64_t least = (usable_ - 12) * 32 / 255 - 23;
  std::uint64_t local = cell.size;
  if (local > most) {
    local = least + (cell.size - least) % (usable_ - 4);
    if (local > most) local = least;
  }
  const std::uint64_t pointer = local == cell.size ? 0 : 4;
  if (local + pointer > rest.size()) return false;
  if (pointer) cell.overflow = Number(rest, local, pointer);
  cell.local = rest.first(local);
  rest = rest.subspan(local + pointer);
  return true;
}

DamagedFile::DamagedFile(const std::filesystem::path& file) : handle_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
  struct stat status = {};
  if (!handle_ || ::fstat(handle_.Get(), &status) != 0) RaiseFileError(errno, ErrorNumber::FileNotFound);
  unsigned char header[kFileHeader] = {};
  const bool isRead = ::pread(handle_.Get(), header, kFileHeader, 0) == static_cast<ssize_t>(kFileHeader);
  const std::uint32_t size = Number(header, 16, 2) == 1 ? 65536 : Number(header, 16, 2);
  hasHeader_ = isRead && std::memcmp(header, kMagic.data(), kMagic.size()) == 0 && IsPageSize(size) && header[20] < 64;
  if (hasHeader_) {
    pageSize_ = size;
    usable_ = size - header[20];
  }
  pages_ = static_cast<PageNumber>(
      std::min<std::int64_t>((status.st_size + pageSize_ - 1) / pageSize_, std::numeric_limits<std::int32_t>::max()));
}

// A page at the end of a file that was cut short holds what is left of it.
std::vector<unsigned char> DamagedFile::Read(PageNumber page) const {
  std::vector<unsigned char> bytes(pageSize_);
  if (!Has(page)) return {};
  const ssize_t count = ::pread(handle_.Get(), bytes.data(), pageSize_, static_cast<off_t>(page - 1) * pageSize_);
  return count > 0 ? bytes : std::vector<unsigned char>();
}

std::optional<Bytes> DamagedFile::Payload(const TreePage::Cell& cell, std::vector<unsigned char>& gathered) const {
  if (cell.local.size() == cell.size) return cell.local;
  if (cell.size > std::uint64_t{pages_} * usable_) return std::nullopt;
  gathered.assign(cell.local.begin(), cell.local.end());
  for (PageNumber next = cell.overflow; gathered.size() < cell.size;) {
    const std::vector<unsigned char> page = Read(next);
    if (page.empty()) return std::nullopt;
    next = Number(page, 0, 4);
    const auto part = std::min<std::uint64_t>(cell.size - gathered.size(), usable_ - 4);
    gathered.insert(gathered.end(), page.begin() + 4, page.begin() + 4 + static_cast<std::ptrdiff_t>(part));
    const bool isLast = gathered.size() == cell.size;
    if (isLast != (next == 0)) return std::nullopt;
  }
  return gathered;
}

std::optional<std::vector<bool>> DamagedFile::FreePages() const {
  const std::vector<unsigned char> first = Read(1);
  if (!hasHeader_ || first.empty()) return std::nullopt;
  std::vector<bool> isFree(pages_ + std::size_t{1});
  std::uint32_t count = 0;
  const auto take = [&](PageNumber page) {
    if (!Has(page) || isFree[page]) return false;
    isFree[page] = true;
    ++count;
    return true;
  };
  for (PageNumber trunk = Number(first, 32, 4); trunk != 0;) {
    const std::vector<unsigned char> page = Read(trunk);
    const std::uint32_t leaves = Number(page, 4, 4);
    if (!take(trunk) || leaves > usable_ / 4 - 2) return std::nullopt;
    for (std::uint32_t i = 0; i < leaves; ++i) {
      if (!take(Number(page, 8 + 4 * i, 4))) return std::nullopt;
    }
    trunk = Number(page, 0, 4);
  }
  return count == Number(first, 36, 4) ? std::optional(isFree) : std::nullopt;
}

std::vector<bool> DamagedFile::PagesListedAsFree() const {
  std::vector<bool> isFree(pages_ + std::size_t{1});
  for (PageNumber trunk = 1; trunk <= pages_; ++trunk) {
    const std::vector<unsigned char> page = Read(trunk);
    const std::uint32_t leaves = Number(page, 4, 4);
    if (page.empty() || Number(page, 0, 4) > pages_ || leaves > usable_ / 4 - 2) continue;
    std::vector<PageNumber> listed = {trunk};
    for (std::uint32_t i = 0; i < leaves; ++i) listed.push_back(Number(page, 8 + 4 * i, 4));
    if (!std::ranges::all_of(listed, [&](PageNumber number) { return Has(number); })) continue;
    for (const PageNumber number : listed) isFree[number] = true;
  }
  return isFree;
}

}  // namespace norvane::store
