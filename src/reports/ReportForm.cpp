#include "reports/ReportForm.h"

namespace norvane {

namespace {

// A page at 100 percent shows in its whole width.
constexpr Twips kFirstWidth = 13'200;
constexpr Twips kFirstHeight = 11'400;

}  // namespace

ReportForm::ReportForm(Program& host, std::string name, std::string caption, std::string previewName, ButtonStyle exit)
    : Form(host, std::move(name), {.caption = std::move(caption), .width = kFirstWidth, .height = kFirstHeight}),
      btnExit(*this, "btnExit", std::move(exit)),
      preview_(*this, std::move(previewName)) {
  SetExitButton(btnExit);
  btnExit.Click = [this] { btnExit_Click(); };
}

void ReportForm::SetReportLayout(layout::Nodes strip, layout::Nodes beside) {
  strip.push_back(layout::Space());
  strip.push_back(btnExit);
  layout::Nodes body{layout::Stretch(preview_)};
  body.insert(body.end(), beside.begin(), beside.end());
  SetLayout(layout::Column({layout::Strip(std::move(strip)), layout::Stretch(layout::Row(std::move(body)))}));
}

void ReportForm::ShowNotice(std::string_view name) {
  screens.Show(name, {.owner = this});
  desktop.DoEvents();
}

void ReportForm::StartReport(const ReportMargins& margins) {
  if (!IsVisible()) preview_.SetFocus();
  preview_.SetPageSetting(1);
  preview_.SetZoom(100.0);
  preview_.SetMargins(margins.left, margins.right, margins.top, margins.bottom);
  preview_.StartDocument();
}

std::string ReportForm::ListHeader(const std::string& title) const {
  return title + "|" + globals.CoName + "|" + convert.ToText(desktop.Today());
}

void ReportForm::btnExit_Click() {
  Unload();
}

// A window too small for its controls leaves them as they are: what doesn't fit raises an error, which is passed over.

VSInvoiceReport::VSInvoiceReport(Program& host, std::string name, std::string caption)
    : ReportForm(host, std::move(name), std::move(caption), "VSInvoice", {.caption = "&Exit"}) {}

void VSInvoiceReport::Form_Resize() {
  IgnoringErrors([this] { VSInvoice.SetWidth(Width() - 170); }, [this] { VSInvoice.SetHeight(Height() - 650); },
                 [this] {
                   if (Width() >= 1000) btnExit.SetLeft(Width() - 1000);
                 });
}

// The tooltip is the same on all of these reports, whatever they print.
VSregistryReport::VSregistryReport(Program& host, std::string name, std::string caption)
    : ReportForm(host, std::move(name), std::move(caption), "VSregistry",
                 {.toolTip = "Exit Vendor Payments", .icon = "exit"}) {}

void VSregistryReport::Form_Resize() {
  ResizePreview(0);
  btnExit.SetLeft(Width() - 1000);
}

void VSregistryReport::ResizeBeside(Frame& frame) {
  ResizePreview(frame.Width());
  frame.SetLeft(VSregistry.Width() + VSregistry.Left() + 25);
  btnExit.SetLeft(Width() - 1000);
}

void VSregistryReport::ResizePreview(Twips rightOfIt) {
  IgnoringErrors([&] { VSregistry.SetWidth(Width() - rightOfIt - 250); }, [&] { VSregistry.SetLeft(25); },
                 [&] { VSregistry.SetHeight(Height() - 800); });
}

}  // namespace norvane
