#include "screens/Notices.h"

#include <memory>

#include "forms/Form.h"
#include "forms/ProgressBar.h"

namespace norvane {

namespace {

/// What a notice's Timer1 does, if it has one.
struct NoticeTimer {
  int milliseconds = 0;  ///< 0 for no timer
  bool enabled = false;
  const char* repaints = nullptr;  ///< at its tick the notice goes and this screen is painted again
};

struct NoticeKind {
  const char* name;
  const char* caption;
  const char* label;
  const char* secondLabel = nullptr;
  NoticeTimer timer = {};
  bool hasBar = false;                                   ///< long work shows in it how far it is
  std::string (*labelAtLoad)(const Globals&) = nullptr;  ///< replaces `label`
};

constexpr NoticeTimer kIdleTimer{.milliseconds = 1500, .enabled = false, .repaints = screen::kInvoiceDetail};

std::string LoadingInvoicesLabel(const Globals& globals) {
  return "Loading Invoices for ... " + globals.CurClientName;
}

constexpr NoticeKind kNotices[] = {
    {screen::kGettingClients, "Getting Clients", "Getting Clients...", nullptr, kIdleTimer},
    {screen::kGettingInvoices, "Getting Invoices", "Getting Client Invoices...", nullptr, kIdleTimer},
    {screen::kGettingInventory, "Getting Inventory", "Getting Inventory...", nullptr, kIdleTimer},
    {screen::kGettingReceipts, "Getting Receipts", "Getting Client Receipts...", nullptr, kIdleTimer},
    {screen::kLoadingClients, "Loading Clients", "Loading Client Data...", nullptr, {1000, true}, true},
    {screen::kLoadingBilling, "Loading Billing", "Loading Billing Data...", nullptr, {1000, true}, true},
    {screen::kCustomerSaved, "Save Client", "Saving Client...", "Updating Client List...", {1000, false}},
    {screen::kVendorSaved, "Save Vendor", "Vendor Saved Successfully!", nullptr, {1500, true, screen::kVendors}},
    {screen::kLoadingInvoices, "Loading Invoices", "Loading Invoices...", nullptr, {}, false, LoadingInvoicesLabel},
};

class Notice : public Form {
 public:
  Notice(Program& host, const NoticeKind& kind)
      : Form(host, kind.name, {.caption = kind.caption, .resizable = false, .goesWithOwner = true, .notice = true}),
        kind_(kind),
        Label1(*this, "Label1", kind.label) {
    layout::Nodes labels{Label1};
    if (kind.secondLabel) {
      Label2 = std::make_unique<Label>(*this, "Label2", kind.secondLabel);
      labels.emplace_back(*Label2);
    }
    if (kind.hasBar) {
      Bar = std::make_unique<ProgressBar>(*this, "Bar");
      labels.emplace_back(*Bar);
    }
    SetLayout(layout::Column(std::move(labels)));
    if (kind.timer.milliseconds > 0) MakeTimer(kind.timer);
  }

 private:
  void Form_Load() override {
    if (kind_.labelAtLoad) Label1.SetCaption(kind_.labelAtLoad(globals));
  }
  void MakeTimer(const NoticeTimer& timer) {
    Timer1 = std::make_unique<Timer>(*this, "Timer1", timer.milliseconds, timer.enabled);
    if (!timer.repaints) return;
    Timer1->Tick = [this, repaints = timer.repaints] {
      Unload();
      if (Form* form = screens.Find(repaints)) form->Refresh();
    };
  }

  const NoticeKind& kind_;
  Label Label1;
  std::unique_ptr<Label> Label2;
  std::unique_ptr<ProgressBar> Bar;
  std::unique_ptr<Timer> Timer1;
};

}  // namespace

void RegisterNotices(ScreenTable& screens) {
  for (const NoticeKind& notice : kNotices) {
    screens.AddFactory(notice.name, [&notice](Program& program) { return std::make_shared<Notice>(program, notice); });
  }
}

}  // namespace norvane
