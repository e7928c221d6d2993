#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Currency.h"
#include "core/Date.h"

/// Files of comma-separated values as RFC 4180 has them, in UTF-8 with line ends of two characters.
///
/// A spreadsheet takes a text that begins with =, +, - or @ for a formula. Such a text gets an apostrophe in front on
/// its way out, unless it is a plain number, and loses it on its way in; so does one that has such an apostrophe
/// already.
namespace norvane::csv {

/// Whether the text, its apostrophes in front aside, begins as a formula does.
bool LooksLikeFormula(std::string_view text);

// Values as the files hold them in every region.
std::string NumberText(Currency value);
/// The shortest text that reads back as the same number.
std::string NumberText(double value);
/// Year-month-day.
std::string DateText(Date day);
/// Reads year-month-day, nothing if it is none.
std::optional<Date> DateOf(std::string_view text);

class Writer {
 public:
  /// An empty text is written with quotes, and so differs from an empty cell.
  void Text(std::string_view text);
  /// A number or a day, which needs no protection.
  void Value(std::string_view text);
  void Empty();
  void EndRow();
  /// What has been written since the last time.
  std::string Take() { return std::exchange(text_, {}); }
  std::size_t Size() const { return text_.size(); }

 private:
  void Separate();

  std::string text_;
  bool first_ = true;
};

enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

struct Cell {
  std::string text;
  bool isEmpty = true;  ///< nothing between the separators, not even quotes
};

/// Reads a file row by row, in memory for no more than a row and a block. The encoding is found out from the whole
/// file: by its mark, else UTF-8 if all of it is that, else the Windows encoding of western Europe. The separator is
/// the comma, semicolon or tab that the first line has most of.
class Reader {
 public:
  /// Raises 53 if there is no such file, 70 if it can't be read.
  explicit Reader(const std::filesystem::path& file);

  norvane::csv::Encoding Encoding() const { return encoding_; }
  /// The next row that isn't empty; false at the end, and where the file can't be read any further.
  bool Next(std::vector<Cell>& row);
  /// The number of the row read last, empty ones counted, the first being 1.
  std::int64_t Row() const { return row_; }
  /// Why the file couldn't be read to its end, as a sentence; empty if it could.
  const std::string& Problem() const { return problem_; }
  /// How much of the file has been read, from 0 to 1.
  double Done();

 private:
  static constexpr int kEnd = -1;
  void FindEncoding();
  bool IsUtf8();
  void FindSeparator();
  bool Fill();
  int Peek();
  int Get();
  bool ReadRow(std::vector<Cell>& row);
  bool ReadCell(Cell& cell);
  bool ReadQuoted(Cell& cell);

  std::ifstream file_;
  double size_ = 0;
  norvane::csv::Encoding encoding_ = norvane::csv::Encoding::Utf8;
  std::size_t mark_ = 0;   ///< bytes of the mark that the file begins with
  std::string raw_;        ///< read, not yet decoded: part of a character at most
  std::string block_;      ///< decoded
  std::size_t place_ = 0;  ///< in the block
  char separator_ = ',';
  std::int64_t row_ = 0;
  std::string problem_;
};

}  // namespace norvane::csv
