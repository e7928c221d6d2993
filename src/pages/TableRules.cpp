#include "pages/TableRules.h"

namespace norvane::pages {
namespace {

constexpr double kFrame = 0.75;
constexpr double kInner = 0.5;
constexpr double kHairline = 0.25;
constexpr double kHairlineGrey = 0.5;

class Ruling {
 public:
  Ruling(PageWriter& writer, const Table& table, const TablePart& part)
      : writer_(writer), table_(table), part_(part), left_(part.left), right_(part.left) {
    for (const Column& column : table.columns) right_ += column.width;
  }

  void Totals() {
    Frame();
    for (std::size_t i = 1; i + 1 < part_.edges.size(); ++i) Across(part_.edges[i], kInner);
  }

  void Grid() {
    Totals();
    double x = left_;
    for (std::size_t i = 0; i + 1 < table_.columns.size(); ++i) {
      x += table_.columns[i].width;
      Down(x, kInner);
    }
  }

  void List() {
    const std::size_t end = part_.edges.size() - 1;
    for (std::size_t i = 1; i <= end; ++i) {
      const bool strong = i == end || (i == 1 && part_.hasHeading);
      Across(part_.edges[i], strong ? kFrame : kHairline, strong ? 0 : kHairlineGrey);
    }
  }

 private:
  void Frame() {
    Across(Top(), kFrame);
    Across(Bottom(), kFrame);
    Down(left_, kFrame);
    Down(right_, kFrame);
  }

  void Across(double y, double width, double grey = 0) { writer_.Rule(left_, y, right_, y, width, grey); }
  void Down(double x, double width) { writer_.Rule(x, Top(), x, Bottom(), width); }
  double Top() const { return part_.edges.front(); }
  double Bottom() const { return part_.edges.back(); }

  PageWriter& writer_;
  const Table& table_;
  const TablePart& part_;
  double left_;
  double right_;
};

}  // namespace

void DrawRules(PageWriter& writer, const Table& table, const TablePart& part) {
  Ruling ruling(writer, table, part);
  switch (table.border) {
    case TableBorder::None:
      break;
    case TableBorder::Totals:
      ruling.Totals();
      break;
    case TableBorder::Grid:
      ruling.Grid();
      break;
    case TableBorder::List:
      ruling.List();
      break;
  }
}

}  // namespace norvane::pages
