#include <cstdio>
#include <cstdlib>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr const char* kUsage =
    "usage: draw_svg SVG PNG SIZE\n"
    "\n"
    "Draws the square picture SVG into PNG, SIZE pixels wide and high.\n";

constexpr int kLargest = 4096;

bool Draw(const char* svg, const char* png, int size) {
  QSvgRenderer picture{QString(svg)};
  if (!picture.isValid()) return false;
  QImage pixels(size, size, QImage::Format_ARGB32_Premultiplied);
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  painter.setRenderHint(QPainter::Antialiasing);
  picture.render(&painter);
  painter.end();
  return pixels.save(png, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
  const int size = argc == 4 ? std::atoi(argv[3]) : 0;
  if (size < 1 || size > kLargest) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  if (Draw(argv[1], argv[2], size)) return 0;
  std::fprintf(stderr, "draw_svg: cannot draw %s into %s\n", argv[1], argv[2]);
  return 1;
}
