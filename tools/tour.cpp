#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>

#include "app/Composition.h"
#include "forms/Form.h"
#include "sample/Sample.h"
#include "tour/Offscreen.h"
#include "tour/Paper.h"
#include "tour/Stops.h"
#include "tour/TourDesktop.h"
#include "tour/Visit.h"

namespace {

namespace fs = std::filesystem;
using namespace norvane;
using namespace norvane::tour;

constexpr const char* kUsage =
    "usage: tour DELIVERED FOLDER [PICTURE...]\n"
    "\n"
    "Drives the program over sample data, made from the delivered database DELIVERED, and draws every screen into\n"
    "FOLDER: light and dark, in the first size and enlarged; reports also as PDF and as pictures of their first "
    "pages.\n"
    "With names of pictures, only those.\n";

// A Friday morning; the sample reaches up to it.
constexpr std::chrono::year_month_day kDay = std::chrono::year{2025} / 10 / 17;
constexpr double kMorning = 10.4 / 24;

const std::vector<std::pair<ui::Theme, const char*>> kThemes{{ui::Theme::Light, "light"}, {ui::Theme::Dark, "dark"}};

/// The offscreen platform warns each time it is asked for what it can't do; none of it matters for a picture.
void LeaveOutThePlatformsRemarks(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith("This plugin does not support")) std::fprintf(stderr, "%s\n", qPrintable(text));
}

constexpr const char* kPaper = "paper";

/// Where the pictures go.
struct Target {
  fs::path screens;
  fs::path paper;
};

/// The window with the menus, lists and tips that are open above it.
QPixmap Picture(QWidget& window) {
  std::vector<QWidget*> parts{&window};
  for (QWidget* other : QApplication::topLevelWidgets()) {
    const bool isAbove = other->windowType() == Qt::Popup || other->windowType() == Qt::ToolTip;
    if (isAbove && other->isVisible()) parts.push_back(other);
  }
  QRect all;
  for (const QWidget* part : parts) all |= part->geometry();
  QPixmap picture(all.size());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  for (QWidget* part : parts) painter.drawPixmap(part->geometry().topLeft() - all.topLeft(), part->grab());
  return picture;
}

void Save(QWidget& window, const fs::path& file) {
  if (!Picture(window).save(QString::fromStdString(file.string())))
    throw std::runtime_error("can't write " + file.string());
}

/// Draws the stop's screen; returns the problem found, empty if there is none.
std::string Photograph(const Stop& stop, ui::Theme theme, const fs::path& data, const Target& target) {
  // What a visit enters must not show in the next one.
  const QTemporaryDir own;
  const fs::path folder = own.path().toStdString();
  fs::copy(data, folder,
           fs::copy_options::recursive | fs::copy_options::copy_symlinks | fs::copy_options::overwrite_existing);
  Visit visit(stop, theme, Date(sample::ToDay(kDay) + kMorning), folder);
  return visit.Make([&](Form& form, QWidget& window) {
    const std::string picture(stop.picture);
    visit.Settle();
    Save(window, target.screens / (picture + ".png"));
    if (stop.shot == Stop::Shot::Screen && form.Style().resizable) {
      window.resize(window.width() * 3 / 2, window.height() * 7 / 5);
      visit.Settle();
      Save(window, target.screens / (picture + "-enlarged.png"));
    }
    if (stop.shot == Stop::Shot::Screen) WritePaper(form, target.paper, picture);
  });
}

/// Writes a page that shows all pictures of the folder.
void WriteIndex(const fs::path& folder, const std::vector<const Stop*>& stops) {
  std::ofstream html(folder / "index.html");
  html << "<!DOCTYPE html><meta charset='utf-8'><title>Norvanes: picture tour</title>\n"
       << "<style>body{font-family:sans-serif}img{max-width:48%;vertical-align:top;margin:4px;border:1px solid "
          "#999}</style>\n";
  for (const Stop* stop : stops) {
    html << "<h2>" << stop->picture << "</h2>\n";
    for (const auto& [theme, name] : kThemes) html << "<img src='" << name << "/" << stop->picture << ".png'>\n";
    for (std::size_t page = 1; page <= kPicturedPages; ++page) {
      const std::string file =
          std::string(kPaper) + "/" + std::string(stop->picture) + "-" + std::to_string(page) + ".png";
      if (fs::exists(folder / file)) html << "<img src='" << file << "'>\n";
    }
  }
}

/// Screens that no stop shows.
std::vector<std::string> Unseen(const Program& program) {
  std::vector<std::string> names = program.screens.Names();
  std::erase_if(names, [](const std::string& name) {
    return std::ranges::any_of(Stops(), [&](const Stop& stop) { return stop.screen == name; });
  });
  return names;
}

int Run(const fs::path& delivered, const fs::path& folder, const std::set<std::string_view>& wanted) {
  const QTemporaryDir data;
  const QTemporaryDir empty;
  const fs::path dataFolder = data.path().toStdString();
  const fs::path emptyFolder = empty.path().toStdString();
  fs::create_directory_symlink(NORVANES_HELP, dataFolder / "help");
  fs::copy_file(delivered, emptyFolder / "norvane.mdb");
  sample::WriteSample(delivered, dataFolder / "norvane.mdb", {.size = {}, .seed = 1, .today = sample::ToDay(kDay)});

  TourDesktop desktop(ui::Theme::Light, Date(sample::ToDay(kDay)));
  Program program(desktop, {}, dataFolder);
  Compose(program);
  const std::vector<const Stop*> stops = StopsOf(program, wanted);

  int problems = 0;
  fs::create_directories(folder / kPaper);
  for (const auto& [theme, name] : kThemes) {
    fs::create_directories(folder / name);
    for (const Stop* stop : stops) {
      const std::string problem =
          Photograph(*stop, theme, stop->isEmpty ? emptyFolder : dataFolder, {folder / name, folder / kPaper});
      if (problem.empty()) continue;
      ++problems;
      std::fprintf(stderr, "%s (%s): %s\n", std::string(stop->picture).c_str(), name, problem.c_str());
    }
  }
  for (const std::string& screen : Unseen(program)) {
    ++problems;
    std::fprintf(stderr, "no stop shows %s\n", screen.c_str());
  }
  WriteIndex(folder, stops);
  std::printf("%zu screens, light and dark: %s\n", stops.size(), (folder / "index.html").c_str());
  return problems == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  qunsetenv("QT_QPA_PLATFORM");
  const Offscreen offscreen;
  qInstallMessageHandler(LeaveOutThePlatformsRemarks);
  QApplication application(argc, argv);
  try {
    return Run(argv[1], fs::absolute(argv[2]), {argv + 3, argv + argc});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tour: %s\n", error.what());
    return 1;
  }
}
