#pragma once

#include <string>

#include "pages/DocumentBuilder.h"

namespace norvane::pages {

/// What varies on a printed invoice.
struct SampleInvoice {
  std::string description = "Spring order";
  int lines = 3;
  std::string notes = "Oak table";
};

inline void WriteBoxes(DocumentBuilder& report) {
  report.SetAlignment(Alignment::Centre);
  report.SetBold(true);
  report.WriteTextBox("Remit to: Norvane & Daughters", "2in", "0.25in", "4in", ".25in");
  report.SetBold(false);
  report.WriteTextBox("12 Harbour Road\nPortland, ME 04101\nPhone: 207-555-0100 / \nWeb: norvane.example", "2in",
                      "0.5in", "4in", "1in");
  report.WriteParagraph("");
  report.SetAlignment(Alignment::Left);
  const auto address = [&](const char* title, const char* left) {
    report.SetBold(true);
    report.WriteTextBox(title, left, "1.5in", "1in", ".25in");
    report.SetBold(false);
    report.WriteTextBox("Ada Byron\n1 Mill Lane\nBath, ME 04530\n207-555-0123", left, "1.75in", "3.5in", "1.25in");
  };
  address("Bill To:", "0.5in");
  address("Ship To:", "5in");
}

inline void WriteLines(DocumentBuilder& report, const SampleInvoice& invoice) {
  constexpr auto kFormat = "^0.75in|^0.75in|^0.75in|<3in|>1.125in|>1.125in;";
  constexpr auto kHeading = "Qty|BackOrd|Item#|Description|Charge|Total;";
  report.StartTable();
  report.SetTableBorder(TableBorder::Grid);
  report.AddTable(kFormat, kHeading, "");
  for (int line = 1; line <= invoice.lines; ++line) {
    report.AddTable(kFormat, kHeading, "2||" + std::to_string(line) + "|" + invoice.notes + "|$10.00|$20.00;");
  }
  report.SetTableRows(20);
  for (int row = 1; row <= 20; ++row) report.SetTableRowHeight(row, "0.25in");
  report.SetTableBold(0, 1, 0, 6);
  report.EndTable();
}

inline void WriteTotals(DocumentBuilder& report) {
  constexpr auto kFormat = ">1.125in|>1.125in;";
  constexpr auto kHeading = "SubTotal|$60.00;";
  report.StartTable();
  report.SetAlignment(Alignment::Right);
  report.SetTableBorder(TableBorder::Totals);
  for (const char* row :
       {"Discount:|$6.00;", "Interest:|$0.00;", "Sales Tax:|$3.00;", "Shipping:|$4.50;", "Total:|$61.50;"}) {
    report.AddTable(kFormat, kHeading, row);
  }
  report.SetTableBold(5, 1, 5, 2);
  report.EndTable();
}

/// Records an invoice in the steps in which the invoice screen does.
inline void WriteInvoice(DocumentBuilder& report, const SampleInvoice& invoice) {
  report.SetPageSetting(1);
  report.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
  report.StartDocument();
  report.SetHeader("||Invoice #1042");
  WriteBoxes(report);
  report.WriteParagraph("");
  report.WriteParagraph("Description: " + invoice.description);
  report.WriteParagraph("");
  report.StartTable();
  report.SetTableBorder(TableBorder::Grid);
  report.AddTable("^1in|^3in|^2in|^1.5in;", "Date|Ship Via|Sales Rep|Terms;", "11/22/2026|Ground|Grace|Net 30;");
  report.SetTableBold(0, 1, 0, 4);
  report.EndTable();
  report.WriteParagraph("");
  WriteLines(report, invoice);
  WriteTotals(report);
  report.SetFooter("|We appreciate your business!|");
  report.EndDocument();
}

}  // namespace norvane::pages
