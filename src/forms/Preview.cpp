#include "forms/Preview.h"

#include <algorithm>
#include <numeric>

#include "forms/Form.h"
#include "pages/Layout.h"

namespace norvane {

const std::string& Preview::Title() const {
  return title_.empty() ? Parent().Caption() : title_;
}

void Preview::SetTitle(std::string title) {
  title_ = std::move(title);
  Notify(Aspect::Caption);
}

void Preview::SetLetter(Letter letter) {
  letter_ = std::move(letter);
  Notify(Aspect::Caption);
}

void Preview::SetFontMetrics(const pages::FontMetrics* metrics) {
  metrics_ = metrics;
  laidOut_.reset();
}

const pages::Pages& Preview::Pages() const {
  if (laidOut_ != Revision()) {
    const bool canLayOut = metrics_ && Recorded();
    pages_ = canLayOut ? pages::LayOut(*Recorded(), *metrics_) : pages::Pages{};
    laidOut_ = Revision();
  }
  return pages_;
}

int Preview::PageCount() const {
  return static_cast<int>(Pages().pages.size());
}

int Preview::SurplusRows() const {
  const std::vector<pages::Page>& pages = Pages().pages;
  return std::accumulate(pages.begin(), pages.end(), 0,
                         [](int rows, const pages::Page& page) { return rows + page.surplusRows; });
}

void Preview::Ended() {
  currentPage_ = 1;
  Notify(Aspect::Pages);
}

void Preview::ShowSoFar() {
  Notify(Aspect::Pages);
}

int Preview::CurrentPage() const {
  return std::min(currentPage_, PageCount());
}

void Preview::SetCurrentPage(int page) {
  currentPage_ = std::clamp(page, 1, std::max(PageCount(), 1));
  Notify(Aspect::State);
}

void Preview::UserFollow(const std::string& target) {
  const Dispatch dispatch(Parent());
  SetFocus();
  if (Parent().IsLoaded()) LinkClick.Raise(target);
}

void Preview::SetZoom(double percent) {
  zoom_ = std::clamp(percent, kSmallestZoom, kLargestZoom);
  SetChoice(ZoomChoice::Percent);
}

void Preview::SetChoice(ZoomChoice choice) {
  choice_ = choice;
  Notify(Aspect::State);
}

}  // namespace norvane
