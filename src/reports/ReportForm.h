#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "forms/Form.h"
#include "forms/Preview.h"

namespace norvane {

/// Distances of the body from the paper's edges, as texts with their unit.
struct ReportMargins {
  const char* left = "0.5in";
  const char* right = "0.5in";
  const char* top = "0.5in";
  const char* bottom = "0.5in";
};

/// What all report screens share: the preview that holds the document, the way out, and the steps they have in common.
///
/// A report reads its data and builds the whole document in its Form_Load; some do so again at the press of a button.
/// It is shown without a modal wait, so several may be open, and each keeps its document until it is unloaded. What
/// stands here is shared by the two families below, after one of which every report is made.
class ReportForm : public Form {
 public:
  Button btnExit;

 protected:
  ReportForm(Program& host, std::string name, std::string caption, std::string previewName, ButtonStyle exit);

  /// To be called once, in the report's constructor: the exit button stands above the preview, at the right, `strip`
  /// before it, and `beside` to the right of the preview.
  void SetReportLayout(layout::Nodes strip = {}, layout::Nodes beside = {});

  /// Runs a procedure that builds the document under the standard trap. After an error the preview shows what there is.
  template <class Body>
  void Build(std::string_view label, Body&& body) {
    if (!Trapped(label, std::forward<Body>(body))) preview_.ShowSoFar();
  }

  /// Shows a loading notice owned by this form and lets the screen paint. To be unloaded by name when the work is done;
  /// after an error it stays, and goes with this form.
  void ShowNotice(std::string_view name);
  /// Sets the page up and starts the document. In a report that is just opening, the keyboard will start in the
  /// preview.
  void StartReport(const ReportMargins& margins = {});
  /// The header of a list: title, company and today's date.
  std::string ListHeader(const std::string& title) const;

  Preview preview_;

 private:
  void btnExit_Click();
};

/// A report on `VSInvoice`.
class VSInvoiceReport : public ReportForm {
 public:
  Preview& VSInvoice = preview_;

 protected:
  VSInvoiceReport(Program& host, std::string name, std::string caption);
  void Form_Resize() override;
};

/// A report on `VSregistry`.
class VSregistryReport : public ReportForm {
 public:
  Preview& VSregistry = preview_;

 protected:
  VSregistryReport(Program& host, std::string name, std::string caption);
  /// The preview over the whole width. A report with criteria in a frame calls ResizeBeside instead.
  void Form_Resize() override;
  /// The frame, which has its width from the start, at the right of the preview.
  void ResizeBeside(Frame& frame);

 private:
  void ResizePreview(Twips rightOfIt);
};

}  // namespace norvane
