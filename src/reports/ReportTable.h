#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "core/Conversions.h"
#include "pages/DocumentBuilder.h"

namespace norvane {

/// The lines, columns and heading of a table, the latter two in the notation of TableFormat.h.
struct TableKind {
  pages::TableBorder border;
  std::string_view format;
  std::string_view heading;
};

/// A cell that shows its amount, a Currency, Double or Value, as currency text.
template <class Amount>
struct Money {
  Amount amount;
};
template <class Amount>
Money(Amount) -> Money<Amount>;

/// Writes one table of a report, row by row, under its heading, which shows even if no row comes. Texts are written as
/// they are: a `|` or `;` in one splits its cell or row. All other cells follow the machine's regional settings.
class ReportTable {
 public:
  /// Starts the table. Document and conversions must outlive it, and so must the texts of `kind`.
  ReportTable(pages::DocumentBuilder& document, const Conversions& convert, const TableKind& kind);

  /// Adds a row of texts, Values, dates, numbers and Money.
  template <class... Cells>
  requires(sizeof...(Cells) > 0) void Row(const Cells&... cells) {
    (Cell(cells), ...);
    EndRow();
  }
  // The same cell by cell, for rows whose columns vary.
  template <class T>
  void Cell(const T& value) {
    if constexpr (std::is_convertible_v<const T&, std::string_view>) {
      AddCell(value);
    } else {
      AddCell(convert_.ToText(value));
    }
  }
  template <class Amount>
  void Cell(const Money<Amount>& money) {
    AddCell(convert_.CurrencyText(money.amount));
  }
  void EndRow();
  /// Adds rows in the notation of TableFormat.h, which the table doesn't count.
  void Raw(std::string_view body);

  /// Bold for the first cells of a row; row 0 is the heading.
  void Bold(int row, int columns);

  void End();
  /// Ends a list whose counted rows have this height.
  void EndList(std::string_view rowHeight);
  /// Ends a form: exactly 20 rows of a quarter of an inch, whatever was added, below a bold heading.
  void EndForm();

 private:
  void AddCell(std::string_view text) { (row_ += text) += '|'; }
  void SetRowHeights(int rows, std::string_view height);

  pages::DocumentBuilder& document_;
  const Conversions& convert_;
  TableKind kind_;
  std::string row_;  ///< the cells of the row that is being added
  int rowCount_ = 0;
};

}  // namespace norvane
