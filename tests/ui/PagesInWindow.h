#pragma once

#include <QPushButton>

#include "forms/Preview.h"
#include "ui/PreviewWidget.h"
#include "ui/WindowTest.h"

namespace norvane::ui {

/// A report of a number of pages.
class PagesForm : public Form {
 public:
  static constexpr const char* kName = "PagesForm";
  explicit PagesForm(Program& owner)
      : Form(owner, kName, {.caption = "Client Balances", .width = 9000, .height = 9000}) {
    SetLayout(layout::Column({layout::Stretch(VSInvoice)}));
    Build(3);
  }
  void Build(int pages) {
    VSInvoice.Clear();
    VSInvoice.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
    VSInvoice.StartDocument();
    VSInvoice.SetHeader("Balances|Norvane|11/22/2026");
    for (int page = 1; page <= pages; ++page) {
      if (page > 1) VSInvoice.NewPage();
      VSInvoice.WriteParagraph("Sheet " + std::to_string(page) + " for Zoë & Søn");
      VSInvoice.StartTable();
      VSInvoice.SetTableBorder(pages::TableBorder::Grid);
      VSInvoice.AddTable("2in|>1in;", "Client|Balance;", "Adams, Henry|$1,234.50;");
      VSInvoice.EndTable();
    }
    VSInvoice.EndDocument();
  }
  Preview VSInvoice{*this, "VSInvoice"};
};

/// The report in a window.
class PagesInWindow : public WindowTest {
 protected:
  PagesInWindow() {
    program.screens.Add<PagesForm>();
    program.screens.Show(PagesForm::kName);
    Settle();
  }
  PagesForm& Report() { return program.screens.Touch<PagesForm>(); }
  Preview& Shown() { return Report().VSInvoice; }
  PreviewWidget& View() { return Of<PreviewWidget>(Shown()); }
  QPushButton& Tool(const QString& name) {
    for (auto* tool : View().findChildren<QPushButton*>()) {
      if (tool->accessibleName() == name) return *tool;
    }
    throw std::logic_error("no tool " + name.toStdString());
  }
};

}  // namespace norvane::ui
