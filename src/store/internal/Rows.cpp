#include "store/internal/Rows.h"

#include <bit>
#include <cstring>
#include <limits>

#include "core/Characters.h"
#include "store/internal/Sqlite.h"

namespace norvane::store {
namespace {

static_assert(std::endian::native == std::endian::little, "a packed number lies as it does in memory");

// A field begins with its length and one, 0 for a Null; lengths too great for a byte follow in four more.
constexpr unsigned char kNull = 0;
constexpr unsigned char kLong = 255;

void AppendBytes(std::string& bytes, std::string_view field) {
  if (field.size() + 1 < kLong) {
    bytes += static_cast<char>(field.size() + 1);
  } else {
    const auto length = static_cast<std::uint32_t>(field.size());
    bytes += static_cast<char>(kLong);
    bytes.append(reinterpret_cast<const char*>(&length), sizeof length);
  }
  bytes += field;
}

/// The field that begins at `place`, which is then moved past it.
std::string_view TakeBytes(std::string_view bytes, std::size_t& place) {
  const auto head = static_cast<unsigned char>(bytes[place++]);
  if (head == kNull) return {};
  std::uint32_t length = head - 1U;
  if (head == kLong) {
    std::memcpy(&length, &bytes[place], sizeof length);
    place += sizeof length;
  }
  const std::string_view field(bytes.data() + place, length);
  place += length;
  return field;
}

/// The sign goes into the lowest bit, so that small numbers are short on either side of 0.
void AppendWhole(std::string& bytes, std::int64_t value) {
  const std::uint64_t folded = (static_cast<std::uint64_t>(value) << 1) ^ static_cast<std::uint64_t>(value >> 63);
  const std::size_t length = (static_cast<std::size_t>(std::bit_width(folded)) + 7) / 8;
  AppendBytes(bytes, {reinterpret_cast<const char*>(&folded), length});
}

std::int64_t WholeOf(std::string_view field) {
  std::uint64_t folded = 0;
  std::memcpy(&folded, field.data(), field.size());
  return static_cast<std::int64_t>(folded >> 1) ^ -static_cast<std::int64_t>(folded & 1);
}

/// Days and rates are round in binary: their low bytes are zeros.
void AppendReal(std::string& bytes, double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int zeros = bits == 0 ? 8 : std::countr_zero(bits) / 8;
  AppendBytes(bytes, {reinterpret_cast<const char*>(&bits) + zeros, static_cast<std::size_t>(8 - zeros)});
}

double RealOf(std::string_view field) {
  std::uint64_t bits = 0;
  std::memcpy(reinterpret_cast<char*>(&bits) + 8 - field.size(), field.data(), field.size());
  return std::bit_cast<double>(bits);
}

std::int64_t InLongRange(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    Raise(ErrorNumber::Overflow);
  }
  return value;
}

}  // namespace

int Rows::Find(std::string_view name) const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (EqualNoCase(columns_[i].name, name)) return static_cast<int>(i);
  }
  return -1;
}

void Rows::Read(sqlite3_stmt* statement) {
  starts_.push_back(bytes_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i) AppendField(columns_[i].type, statement, static_cast<int>(i));
}

void Rows::AppendField(FieldType type, sqlite3_stmt* statement, int column) {
  if (sqlite3_column_type(statement, column) == SQLITE_NULL) {
    bytes_ += static_cast<char>(kNull);
    return;
  }
  switch (type) {
    case FieldType::Long:
      return AppendWhole(bytes_, InLongRange(sqlite3_column_int64(statement, column)));
    case FieldType::Currency:
      return AppendWhole(bytes_, sqlite3_column_int64(statement, column));
    case FieldType::Boolean:
      return AppendWhole(bytes_, sqlite3_column_int64(statement, column) != 0);
    case FieldType::Double:
    case FieldType::Date:
      return AppendReal(bytes_, sqlite3_column_double(statement, column));
    case FieldType::Text:
      return AppendBytes(bytes_, ColumnText(statement, column));
  }
}

void Rows::AppendEmpty() {
  starts_.push_back(bytes_.size());
  bytes_.append(columns_.size(), static_cast<char>(kNull));
}

void Rows::AppendValue(const Value& value) {
  struct Append {
    std::string& bytes;
    void operator()(Null) const { bytes += static_cast<char>(kNull); }
    void operator()(std::int32_t number) const { AppendWhole(bytes, number); }
    void operator()(double number) const { AppendReal(bytes, number); }
    void operator()(Currency amount) const { AppendWhole(bytes, amount.TenThousandths()); }
    void operator()(Date date) const { AppendReal(bytes, date.Serial()); }
    void operator()(bool truth) const { AppendWhole(bytes, truth); }
    void operator()(const std::string& text) const { AppendBytes(bytes, text); }
  };
  std::visit(Append{bytes_}, value);
}

// The row is written again after the others; the space of the old one is lost unless it was the last.
void Rows::Change(std::size_t row, const std::vector<std::optional<Value>>& values) {
  std::vector<Value> changed;
  changed.reserve(columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    changed.push_back(values[i] ? *values[i] : Get(row, static_cast<int>(i)));
  }
  if (row + 1 == Count()) bytes_.resize(starts_[row]);
  starts_[row] = bytes_.size();
  for (const Value& value : changed) AppendValue(value);
}

void Rows::Trim() {
  starts_.shrink_to_fit();
  bytes_.shrink_to_fit();
}

std::string_view Rows::At(std::size_t row, int column) const {
  std::size_t place = starts_[row];
  for (int i = 0; i < column; ++i) TakeBytes(bytes_, place);
  return TakeBytes(bytes_, place);
}

Value Rows::Get(std::size_t row, int column) const {
  const std::string_view field = At(row, column);
  if (!field.data()) return Null{};
  switch (columns_[column].type) {
    case FieldType::Long:
      return static_cast<std::int32_t>(WholeOf(field));
    case FieldType::Double:
      return RealOf(field);
    case FieldType::Currency:
      return Currency::FromTenThousandths(WholeOf(field));
    case FieldType::Date:
      return Date(RealOf(field));
    case FieldType::Boolean:
      return WholeOf(field) != 0;
    case FieldType::Text:
      break;
  }
  return std::string(field);
}

double Rows::Number(std::size_t row, int column) const {
  const FieldType type = columns_[column].type;
  if (type == FieldType::Double || type == FieldType::Date) return RealOf(At(row, column));
  return static_cast<double>(Whole(row, column));
}

std::int64_t Rows::Whole(std::size_t row, int column) const {
  return WholeOf(At(row, column));
}

}  // namespace norvane::store
