#pragma once

#include <vector>

#include "forms/Form.h"
#include "forms/Preview.h"
#include "screens/overview/OverviewPage.h"

namespace norvane {

class Customer;

/// How the business stands, on a page whose figures open their lists, and beside it the same figures as a list for the
/// keyboard.
class frmOverview : public Form {
 public:
  static constexpr const char* kName = screen::kfrmOverview;
  explicit frmOverview(Program& program);

  Button btnRefresh{*this, "btnRefresh", {.toolTip = "Read the figures again", .icon = "refresh"}};
  Button btnOpen{*this, "btnOpen", {.caption = "&Open List"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Overview", .icon = "exit"}};
  Preview OverviewPage{*this, "OverviewPage"};
  Grid FigureList{*this, "FigureList", GridKind::List};

 private:
  void Form_Load() override;
  void ReadFigures();
  void AddFigures(const Standing& standing);
  void AddMonths(const Standing& standing);
  void Add(std::string name, std::string value, std::function<void()> open = nullptr);
  /// What the main screen's menu or list does; nothing once the main screen has closed.
  std::function<void()> OnMain(std::function<void(Customer&)> action);
  std::function<void()> Choosing(MenuEntry Customer::*entry);
  std::function<void()> ShowingSalesOf(std::int32_t client);
  void ShowIncome(Date beginning, Date ending);
  void OpenFigure(int index);

  std::vector<Figure> figures_;
};

}  // namespace norvane
