#pragma once

#include <optional>
#include <string>

#include "forms/Control.h"
#include "pages/DocumentBuilder.h"
#include "pages/FontMetrics.h"
#include "pages/Pages.h"

namespace norvane {

/// How large the pages are shown: at a scale in percent, or fitted into the window in one of the ways that kZoomChoices
/// lists in the same order.
enum class ZoomChoice { Percent, WholePage, PageWidth, TwoPages, Thumbnail };

inline constexpr const char* kZoomChoices = "Whole &Page|Page &Width|&Two Pages|Thumb&nail";

/// How a document made out to one client is sent.
struct Letter {
  std::string address;  ///< empty if it isn't known
  std::string subject;
};

/// The control in which a report builds its document, and which shows and prints the pages.
///
/// It holds the document and how it is viewed. The drawing side provides the metrics of its fonts and asks for the
/// pages; it is notified of Aspect::Pages when there are new ones, of Aspect::State when page or zoom have changed, and
/// of Aspect::Caption when the title has.
class Preview : public Control, public pages::DocumentBuilder {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }

  /// The document's name for printers and files: the one set, else the caption of the window.
  const std::string& Title() const;
  void SetTitle(std::string title);
  /// Nothing for a document that isn't made out to one client.
  const std::optional<Letter>& SentAs() const { return letter_; }
  void SetLetter(Letter letter);

  /// Not owned. Pass nullptr before destroying them.
  void SetFontMetrics(const pages::FontMetrics* metrics);
  /// The document as it is now, laid out on first use; none before the first start and while there are no metrics. The
  /// reference stays valid; its contents are replaced by the first use after something was recorded.
  const pages::Pages& Pages() const;
  int PageCount() const;
  /// How many rows the forms of the document have no room for.
  int SurplusRows() const;
  /// Shows the document as far as it was recorded, after an error has ended that.
  void ShowSoFar();

  /// The page viewed, from 1; 0 if there is none. A new document is shown from its first page.
  int CurrentPage() const;
  /// Goes to the nearest page that exists.
  void SetCurrentPage(int page);

  /// The scale in percent while the choice is Percent.
  double Zoom() const { return zoom_; }
  ZoomChoice Choice() const { return choice_; }
  /// Shows the pages at this scale, kept within the two limits.
  void SetZoom(double percent);
  void SetChoice(ZoomChoice choice);
  /// The user's click on a place that opens something.
  void UserFollow(const std::string& target);
  Event<std::string> LinkClick{Parent()};
  static constexpr double kSmallestZoom = 10.0;
  static constexpr double kLargestZoom = 400.0;

 private:
  void Ended() override;

  std::string title_;
  std::optional<Letter> letter_;
  double zoom_ = 100.0;
  ZoomChoice choice_ = ZoomChoice::Percent;
  int currentPage_ = 1;
  const pages::FontMetrics* metrics_ = nullptr;
  mutable pages::Pages pages_;
  mutable std::optional<std::uint64_t> laidOut_;  ///< the revision that `pages_` holds
};

}  // namespace norvane
