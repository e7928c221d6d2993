#include "screens/overview/OverviewPage.h"

#include <algorithm>
#include <cstdio>

namespace norvane {

namespace {

using pages::Alignment;
using pages::Fill;

// In inches.
constexpr double kLeft = 0.5;
constexpr double kWidth = 7.5;
constexpr double kChartTop = 2.5;
constexpr double kChartHeight = 1.9;
constexpr double kMonthWidth = kWidth / Standing::kMonths;
constexpr double kBar = 0.11;
constexpr double kAgesTop = 5.2;
constexpr double kListsTop = 6.95;
constexpr double kRestTop = 8.75;
constexpr double kRow = 0.24;

std::string In(double inches) {
  char text[40];
  std::snprintf(text, sizeof text, "%.4fin", std::max(inches, 0.0));
  return text;
}

struct Rectangle {
  double left, top, width, height;
};

class OverviewPage {
 public:
  OverviewPage(pages::DocumentBuilder& page, const std::vector<Figure>& figures, const Standing& standing)
      : page_(page), figures_(figures), standing_(standing) {}

  void WriteHeading(const std::string& company, const std::string& today) {
    Write("Overview", {kLeft, 0.45, 3, 0.35}, 20, true);
    Write(company, {kLeft + 3, 0.45, 4.5, 0.2}, 10, true, Alignment::Right);
    Write(today, {kLeft + 3, 0.63, 4.5, 0.2}, 10, false, Alignment::Right);
  }

  void WriteTop() {
    constexpr double kGap = 0.1;
    const double width = (kWidth - 3 * kGap) / kFiguresOnTop;
    for (std::size_t i = 0; i < kFiguresOnTop; ++i) {
      const double left = kLeft + static_cast<double>(i) * (width + kGap);
      const Figure& figure = figures_[next_];
      FillBox(Fill::Panel, {left, 0.98, width, 0.75});
      Write(figure.name, {left + 0.1, 1.08, width - 0.2, 0.2}, 9.5);
      Write(figure.value, {left + 0.1, 1.31, width - 0.2, 0.3}, 15, true);
      Link({left, 0.98, width, 0.75});
    }
  }

  void WriteMonths() {
    WriteTitle("Sales and receipts by month", kChartTop - 0.5);
    WriteLegend();
    const double highest = Highest();
    const double bottom = kChartTop + kChartHeight;
    for (const double share : {0.0, 0.5, 1.0})
      FillBox(Fill::Track, {kLeft, bottom - share * kChartHeight, kWidth, 0.01});
    for (std::size_t i = 0; i < standing_.months.size(); ++i) {
      const Standing::Month& month = standing_.months[i];
      const double left = kLeft + static_cast<double>(i) * kMonthWidth;
      WriteBar(Fill::First, left + 0.03, bottom, month.sales, highest);
      WriteBar(Fill::Second, left + 0.03 + kBar, bottom, month.received, highest);
      WriteMonth(month.first, left, bottom + 0.05, i == 0);
      Link({left, kChartTop, kMonthWidth, kChartHeight + 0.4});
    }
  }

  void WriteAges() {
    constexpr double kNameWidth = 1.4;
    constexpr double kAmountWidth = 1.2;
    constexpr double kMost = kWidth - kNameWidth - kAmountWidth - 0.1;
    WriteTitle("Owed by age of the invoice", kAgesTop - 0.3);
    const auto& aged = standing_.aged;
    const double highest = std::max(1.0, std::max_element(aged.begin(), aged.end())->ToDouble());
    for (std::size_t i = 0; i < kAges; ++i) {
      const double top = kAgesTop + static_cast<double>(i) * kRow;
      const Figure& figure = figures_[next_];
      Write(figure.name, {kLeft, top, kNameWidth, kRow}, 10);
      if (i < aged.size()) {
        FillBox(Fill::Panel, {kLeft + kNameWidth, top + 0.02, kMost, 0.15});
        const double share = std::max(0.0, aged[i].ToDouble() / highest);
        if (share > 0)
          FillBox(i == 3 ? Fill::Alert : Fill::First, {kLeft + kNameWidth, top + 0.02, kMost * share, 0.15});
      }
      Write(figure.value, {kLeft + kWidth - kAmountWidth, top, kAmountWidth, kRow}, 10, true, Alignment::Right);
      Link({kLeft, top - 0.02, kWidth, kRow});
    }
  }

  void WriteLists() {
    constexpr double kHalf = 3.6;
    WriteList("Best clients this year", standing_.clients.size(), {kLeft, kListsTop, kHalf, 0});
    WriteList("Best sellers of all years", standing_.items.size(), {kLeft + kWidth - kHalf, kListsTop, kHalf, 0});
    WriteTitle("Stock, orders and registry", kRestTop);
    for (double top = kRestTop + 0.3; next_ < figures_.size(); top += kRow) WriteRow({kLeft, top, kWidth, kRow});
  }

 private:
  void Write(const std::string& text, Rectangle at, double points, bool bold = false,
             Alignment alignment = Alignment::Left) {
    page_.SetFontSize(points);
    page_.SetBold(bold);
    page_.SetAlignment(alignment);
    page_.WriteTextBox(text, In(at.left), In(at.top), In(at.width), In(at.height));
  }

  void WriteTitle(const std::string& text, double top) { Write(text, {kLeft, top, kWidth, 0.25}, 12, true); }

  void FillBox(Fill fill, Rectangle at) { page_.FillBox(fill, In(at.left), In(at.top), In(at.width), In(at.height)); }

  /// Ends a figure: its place opens what it opens.
  void Link(Rectangle at) {
    if (figures_[next_].open) {
      page_.LinkBox(std::to_string(next_), In(at.left), In(at.top), In(at.width), In(at.height));
    }
    ++next_;
  }

  void WriteLegend() {
    constexpr double kTop = kChartTop - 0.45;
    FillBox(Fill::First, {6.2, kTop, 0.12, 0.12});
    Write("Sales", {6.37, kTop - 0.02, 0.6, 0.2}, 9);
    FillBox(Fill::Second, {7.1, kTop, 0.12, 0.12});
    Write("Receipts", {7.27, kTop - 0.02, 0.73, 0.2}, 9);
  }

  double Highest() const {
    double highest = 1;
    for (const Standing::Month& month : standing_.months) {
      highest = std::max({highest, month.sales.ToDouble(), month.received.ToDouble()});
    }
    return highest;
  }

  void WriteBar(Fill fill, double left, double bottom, Currency amount, double highest) {
    const double height = std::max(0.0, amount.ToDouble() / highest) * kChartHeight;
    if (height > 0) FillBox(fill, {left, bottom - height, kBar, height});
  }

  /// The letter of each month, and the year below the first of it that is shown.
  void WriteMonth(Date first, double left, double top, bool isFirst) {
    constexpr std::string_view kLetters = "JFMAMJJASOND";
    Write(std::string(1, kLetters[static_cast<std::size_t>(first.Month() - 1)]), {left, top, kMonthWidth, 0.15}, 8,
          false, Alignment::Centre);
    if (isFirst || first.Month() == 1) Write(std::to_string(first.Year()), {left, top + 0.15, 0.5, 0.15}, 8, true);
  }

  void WriteRow(Rectangle at) {
    const Figure& figure = figures_[next_];
    Write(figure.name, {at.left, at.top, at.width - 1.1, kRow}, 10);
    Write(figure.value, {at.left + at.width - 1.1, at.top, 1.1, kRow}, 10, true, Alignment::Right);
    Link({at.left, at.top - 0.02, at.width, kRow});
  }

  void WriteList(const std::string& title, std::size_t rows, Rectangle at) {
    Write(title, {at.left, at.top, at.width, 0.25}, 12, true);
    if (rows == 0) Write("None yet", {at.left, at.top + 0.3, at.width, kRow}, 10);
    for (std::size_t i = 0; i < rows; ++i) {
      WriteRow({at.left, at.top + 0.3 + static_cast<double>(i) * kRow, at.width, kRow});
    }
  }

  pages::DocumentBuilder& page_;
  const std::vector<Figure>& figures_;
  const Standing& standing_;
  std::size_t next_ = 0;  ///< the figure to be written next
};

}  // namespace

void WriteOverview(pages::DocumentBuilder& page, const std::vector<Figure>& figures, const Standing& standing,
                   const std::string& company, const std::string& today) {
  page.SetPageSetting(1);
  page.StartDocument();
  OverviewPage overview(page, figures, standing);
  overview.WriteHeading(company, today);
  overview.WriteTop();
  overview.WriteMonths();
  overview.WriteAges();
  overview.WriteLists();
  page.EndDocument();
}

}  // namespace norvane
