#pragma once

#include "pages/Document.h"
#include "pages/PageWriter.h"
#include "pages/RunningHead.h"
#include "pages/TextRuler.h"

namespace norvane::pages {

/// The body's rectangle on every page, in points.
struct Body {
  double left = 0, right = 0, top = 0, bottom = 0;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  /// The left edge of something `width` wide.
  double Place(Alignment alignment, double width) const;
};

/// The left edge of something `width` wide between two edges.
double Aligned(Alignment alignment, double left, double right, double width);

/// Fills a document's pages one after another: keeps the current position and begins new pages.
class PageFlow {
 public:
  PageFlow(const Document& document, const FontMetrics& metrics);
  PageFlow(const PageFlow&) = delete;
  PageFlow& operator=(const PageFlow&) = delete;

  const Body& Area() const { return body_; }
  TextRuler& Ruler() { return ruler_; }
  PageWriter& Writer() { return writer_; }

  double Position() const { return position_; }
  void Advance(double height) { position_ += height; }
  double Room() const { return body_.bottom - position_; }
  /// Whether something of this height has to go to the next page. What is higher than a page stays on an empty one.
  bool NeedsNewPage(double height) const;
  /// Goes to the next page if what follows, of this height, fits there and not here.
  void KeepTogether(double height);

  void NewPage();
  /// Moves the position to the lowest edge of all boxes of the page.
  void ContinueBelowBox(double bottom);
  /// Ends the last page.
  Pages Finish();

 private:
  void EndPage();

  TextRuler ruler_;
  PageWriter writer_;
  Body body_;
  RunningHead header_;
  RunningHead footer_;
  double position_ = 0;
  double lowestBox_ = 0;
};

}  // namespace norvane::pages
