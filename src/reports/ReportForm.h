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

/// The size of the body font, as text.
inline constexpr const char* kBodySize = "11.25";

struct ListStyle {
  const char* fontSize = "10";  ///< points
  ReportMargins margins = {};
};

/// What all report screens share: the preview that holds the document, the exit button, and the steps they have in
/// common.
///
/// A report reads its data and builds the whole document in its Form_Load; some do so again at the press of a button.
/// It is shown without a modal wait, so several may be open, and each keeps its document until it is unloaded. Every
/// report derives from one of the two families below.
class ReportForm : public Form {
 public:
  Button btnExit;

 protected:
  ReportForm(Program& host, std::string name, std::string caption, ButtonStyle exit);

  /// To be called once, in the report's constructor: the exit button is above the preview, at the right, `strip` before
  /// it, and `beside` to the right of the preview.
  void SetReportLayout(layout::Nodes strip = {}, layout::Nodes beside = {});

  /// Runs a procedure that builds the document under the standard trap. After an error the preview shows what there is.
  template <class Body>
  void Build(std::string_view label, Body&& body) {
    if (!Trapped(label, std::forward<Body>(body))) Viewer().ShowSoFar();
  }

  /// Shows a loading notice owned by this form and lets the screen paint. To be unloaded by name when the work is done;
  /// after an error it stays, and goes with this form.
  void ShowNotice(std::string_view name);
  /// Sets the page up and starts the document, `title` being its name for printers and files. In a report that is just
  /// opening, the keyboard will start in the preview.
  void StartReport(std::string title, const ReportMargins& margins = {});
  /// Starts the document of a list: centred, with a header (left|centre|right).
  void StartList(std::string title, const std::string& header, const ListStyle& style = {});
  /// The usual header of a list: title, company and today's date.
  std::string ListHeader(const std::string& title) const;
  /// The bold title of the table that follows, between empty lines.
  void WriteGroupTitle(const std::string& text);
  /// The closing line of a list; bold stays on.
  void WriteGrandTotal(const std::string& label, Currency amount);
  /// Says so in a plain box and unloads the form. The caller has to leave its procedure.
  void NothingToPrint(const std::string& text);

 private:
  virtual Preview& Viewer() = 0;
  void btnExit_Click();
};

/// A report on `VSInvoice`.
class VSInvoiceReport : public ReportForm {
 public:
  Preview VSInvoice{*this, "VSInvoice"};

 protected:
  VSInvoiceReport(Program& host, std::string name, std::string caption);
  void Form_Resize() override;

 private:
  Preview& Viewer() override { return VSInvoice; }
};

/// A report on `VSregistry`, over the whole width or with a frame of criteria at its right.
class VSregistryReport : public ReportForm {
 public:
  Preview VSregistry{*this, "VSregistry"};

 protected:
  VSregistryReport(Program& host, std::string name, std::string caption);
  /// Instead of SetReportLayout: puts `criteria` into the frame at the right of the preview. The form opens wide enough
  /// for both.
  void SetFramedLayout(Frame& frame, layout::Node criteria);
  void Form_Resize() override;

 private:
  Preview& Viewer() override { return VSregistry; }

  Frame* frame_ = nullptr;
};

}  // namespace norvane
