#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "pages/Document.h"

namespace norvane::pages {

/// Records a document, front to back, from the operations that report screens call.
///
/// Measures are texts with their unit ("0.25in") and raise 5 if they are none. What writes raises 5 while no document
/// is open, and what belongs to a table while none is.
class DocumentBuilder {
 public:
  virtual ~DocumentBuilder() = default;

  // Set-up; stays for the documents that follow.
  /// Discards the document and what is set for its text.
  void Clear();
  /// 1, Letter portrait, is the only page there is; raises 5 for another.
  void SetPageSetting(int setting);
  void SetMargins(std::string_view left, std::string_view right, std::string_view top, std::string_view bottom);

  /// Opens the first page of a new document, in the body font, left aligned, without header and footer. A document
  /// that was there before is discarded, ended or not.
  void StartDocument();
  /// Closes the document. A table that was not ended is not part of it.
  void EndDocument();
  void NewPage();

  // The text set last is on every page, those already begun included. Parts: left|centre|right.
  void SetHeader(std::string_view text);
  void SetFooter(std::string_view text);

  // For all that follows.
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }
  void SetBold(bool bold) { font_.face.bold = bold; }
  /// In points; raises 5 for 0 or less.
  void SetFontSize(double points);
  void SetFontSize(std::string_view points);

  /// The text between the margins, below what is there; a line feed breaks the line, an empty text is an empty line.
  void WriteParagraph(std::string_view text);
  /// The text in a rectangle from the page's top left corner. What follows is placed below the lowest box of the page.
  void WriteTextBox(std::string_view text, std::string_view left, std::string_view top, std::string_view width,
                    std::string_view height);

  /// A filled rectangle from the page's top left corner, below all texts. It takes no room.
  void FillBox(Fill fill, std::string_view left, std::string_view top, std::string_view width, std::string_view height);
  /// Makes such a rectangle open `target` where the page is shown.
  void LinkBox(std::string_view target, std::string_view left, std::string_view top, std::string_view width,
               std::string_view height);

  void StartTable();
  void SetTableBorder(TableBorder border);
  /// Adds the body's rows. Format and heading of the first call count (TableFormat.h); a body may be empty.
  void AddTable(std::string_view format, std::string_view heading, std::string_view body);
  // Set table cell. Rows and columns that do not exist are passed over.
  /// Setting 1: makes the table a form whose body has exactly so many rows; surplus ones are counted and dropped,
  /// missing ones are empty.
  void SetTableRows(int count);
  /// Setting 7: the row's height; 0 is the heading, 1 the first of the body.
  void SetTableRowHeight(int row, std::string_view height);
  /// Setting 25: bold for the cells of a range; columns count from 1.
  void SetTableBold(int firstRow, int firstColumn, int lastRow, int lastColumn);
  /// Places the table by the alignment in force now.
  void EndTable();

  /// Nothing before the first start and after a clear. An unfinished document holds what was written so far.
  const std::optional<Document>& Recorded() const { return document_; }

 protected:
  /// Grows with everything that is recorded or discarded.
  std::uint64_t Revision() const { return revision_; }

 private:
  /// The document was closed.
  virtual void Ended() {}
  Document& Open();
  Table& OpenTable();
  TableRow* Row(int row);

  Margins margins_;
  Alignment alignment_ = Alignment::Left;
  Font font_ = kBodyFont;
  std::optional<Document> document_;
  std::optional<Table> table_;
  bool open_ = false;
  std::uint64_t revision_ = 0;
};

}  // namespace norvane::pages
