#include "pages/PageFlow.h"

#include <algorithm>

namespace norvane::pages {
namespace {

constexpr double kHeadFromEdge = 0.25 * kPointsPerInch;  // of the paper, for header and footer alike
constexpr double kHighestBodyTop = 0.49 * kPointsPerInch;
// A hundredth of a point, so that what fits exactly does fit.
constexpr double kTolerance = 0.01;

Body BodyOf(const Margins& margins) {
  return {margins.left, kPageWidth - margins.right, std::max(margins.top, kHighestBodyTop),
          kPageHeight - margins.bottom};
}

}  // namespace

double Aligned(Alignment alignment, double left, double right, double width) {
  if (alignment == Alignment::Left) return left;
  return alignment == Alignment::Right ? right - width : (left + right - width) / 2;
}

double Body::Place(Alignment alignment, double width) const {
  return Aligned(alignment, left, right, width);
}

PageFlow::PageFlow(const Document& document, const FontMetrics& metrics)
    : ruler_(metrics),
      writer_(ruler_),
      body_(BodyOf(document.margins)),
      header_(ruler_, document.header, body_.left, body_.right),
      footer_(ruler_, document.footer, body_.left, body_.right) {
  NewPage();
}

bool PageFlow::NeedsNewPage(double height) const {
  return height > Room() + kTolerance && position_ > body_.top;
}

void PageFlow::KeepTogether(double height) {
  if (height <= body_.Height() && NeedsNewPage(height)) NewPage();
}

void PageFlow::NewPage() {
  if (writer_.HasPage()) EndPage();
  writer_.NewPage();
  header_.WriteOn(writer_, kHeadFromEdge);
  position_ = body_.top;
  lowestBox_ = 0;
}

void PageFlow::ContinueBelowBox(double bottom) {
  lowestBox_ = std::max(lowestBox_, bottom);
  position_ = lowestBox_;
}

Pages PageFlow::Finish() {
  EndPage();
  return writer_.TakePages();
}

void PageFlow::EndPage() {
  footer_.WriteOn(writer_, kPageHeight - kHeadFromEdge - ruler_.LineHeight(footer_.UsedFont()));
}

}  // namespace norvane::pages
