#include "reports/ReportForm.h"

namespace norvane {

namespace {

// A page at 100 percent shows in its whole width.
constexpr Twips kFirstWidth = 13'500;
constexpr Twips kFirstHeight = 11'400;
/// Room for a date with its picker and label.
constexpr Twips kFrameWidth = 4'600;

}  // namespace

ReportForm::ReportForm(Program& host, std::string name, std::string caption, ButtonStyle exit)
    : Form(host, std::move(name), {.caption = std::move(caption), .width = kFirstWidth, .height = kFirstHeight}),
      btnExit(*this, "btnExit", std::move(exit)) {
  SetExitButton(btnExit);
  btnExit.Click = [this] { btnExit_Click(); };
}

void ReportForm::SetReportLayout(layout::Nodes strip, layout::Nodes beside) {
  strip.push_back(layout::Space());
  strip.push_back(btnExit);
  layout::Nodes body{layout::Stretch(Viewer())};
  body.insert(body.end(), beside.begin(), beside.end());
  SetLayout(layout::Column({layout::Strip(std::move(strip)), layout::Stretch(layout::Row(std::move(body)))}));
}

void ReportForm::ShowNotice(std::string_view name) {
  screens.Show(name, {.owner = this});
  desktop.DoEvents();
}

void ReportForm::StartReport(std::string title, const ReportMargins& margins) {
  Preview& document = Viewer();
  if (!IsVisible()) document.SetFocus();
  document.SetTitle(std::move(title));
  document.SetPageSetting(1);
  document.SetZoom(100.0);
  document.SetMargins(margins.left, margins.right, margins.top, margins.bottom);
  document.StartDocument();
}

void ReportForm::StartList(std::string title, const std::string& header, const ListStyle& style) {
  StartReport(std::move(title), style.margins);
  Viewer().SetAlignment(pages::Alignment::Centre);
  Viewer().SetHeader(header);
  Viewer().SetFontSize(style.fontSize);
}

std::string ReportForm::ListHeader(const std::string& title) const {
  return title + "|" + globals.CoName + "|" + convert.ToText(desktop.Today());
}

void ReportForm::WriteGroupTitle(const std::string& text) {
  Viewer().SetBold(true);
  for (const std::string& line : {std::string(), std::string(), text, std::string()}) Viewer().WriteParagraph(line);
  Viewer().SetBold(false);
}

void ReportForm::WriteGrandTotal(const std::string& label, Currency amount) {
  Viewer().WriteParagraph("");
  Viewer().SetBold(true);
  Viewer().WriteParagraph(label + convert.CurrencyText(amount));
}

void ReportForm::NothingToPrint(const std::string& text) {
  desktop.Say(text);
  Unload();
}

void ReportForm::btnExit_Click() {
  Unload();
}

// A window too small for its controls leaves them as they are: what doesn't fit raises an error, which is passed over.

VSInvoiceReport::VSInvoiceReport(Program& host, std::string name, std::string caption)
    : ReportForm(host, std::move(name), std::move(caption), {.caption = "&Exit"}) {}

void VSInvoiceReport::Form_Resize() {
  IgnoringErrors([this] { VSInvoice.SetWidth(Width() - 170); }, [this] { VSInvoice.SetHeight(Height() - 650); },
                 [this] {
                   if (Width() >= 1000) btnExit.SetLeft(Width() - 1000);
                 });
}

// The tooltip is the same on all of these reports, whatever they print.
VSregistryReport::VSregistryReport(Program& host, std::string name, std::string caption)
    : ReportForm(host, std::move(name), std::move(caption), {.toolTip = "Exit Vendor Payments", .icon = "exit"}) {}

void VSregistryReport::SetFramedLayout(Frame& frame, layout::Node criteria) {
  frame_ = &frame;
  frame.SetWidth(kFrameWidth);
  SetWidth(Width() + frame.Width());
  SetReportLayout({}, {layout::Group(frame, std::move(criteria))});
}

void VSregistryReport::Form_Resize() {
  IgnoringErrors([this] { VSregistry.SetWidth(Width() - (frame_ ? frame_->Width() : 0) - 250); },
                 [this] { VSregistry.SetLeft(25); }, [this] { VSregistry.SetHeight(Height() - 800); });
  if (frame_) frame_->SetLeft(VSregistry.Width() + VSregistry.Left() + 25);
  btnExit.SetLeft(Width() - 1000);
}

}  // namespace norvane
