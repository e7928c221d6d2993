#include "support/PagesText.h"

#include <cmath>
#include <cstdio>

namespace norvane::pages {
namespace {

template <class... Arguments>
void Append(std::string& out, const char* format, Arguments... arguments) {
  char buffer[160];
  std::snprintf(buffer, sizeof buffer, format, arguments...);
  out += buffer;
}

// Rounded first, so that no zero has a minus.
double Inches(double points) {
  return std::round(points / kPointsPerInch * 100) / 100 + 0.0;
}

void AppendRun(std::string& out, const Page& page, const TextRun& run, const Font& font, const FontMetrics& metrics) {
  const double top = run.baseline - metrics.Ascent(font.face) * font.size;
  Append(out, "text %.2fin %.2fin %gpt", Inches(run.x), Inches(top), static_cast<double>(font.size));
  if (font.face.family != kBodyFont.face.family) out += std::string(" ") + FamilyName(font.face.family);
  if (font.face.bold) out += " bold";
  out += " \"" + std::string(page.TextOf(run)) + "\"\n";
}

void AppendLine(std::string& out, const Line& line) {
  Append(out, "line %.2fin %.2fin %.2fin %.2fin %gpt%s\n", Inches(line.x1), Inches(line.y1), Inches(line.x2),
         Inches(line.y2), static_cast<double>(line.width), line.grey > 0 ? " grey" : "");
}

void AppendBox(std::string& out, const Box& box) {
  Append(out, "box %.2fin %.2fin %.2fin %.2fin fill %d\n", Inches(box.left), Inches(box.top), Inches(box.width),
         Inches(box.height), static_cast<int>(box.fill));
}

}  // namespace

std::string PagesText(const Pages& pages, const FontMetrics& metrics) {
  std::string out;
  for (std::size_t i = 0; i < pages.pages.size(); ++i) {
    const Page& page = pages.pages[i];
    Append(out, "page %zu/%zu\n", i + 1, pages.pages.size());
    for (const TextRun& run : page.runs) AppendRun(out, page, run, pages.FontOf(run), metrics);
    for (const Line& line : page.lines) AppendLine(out, line);
    for (const Box& box : page.boxes) AppendBox(out, box);
  }
  return out;
}

}  // namespace norvane::pages
