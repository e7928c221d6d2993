#pragma once

#include "reports/ReportForm.h"

namespace norvane {

class Inventory;
class LongWork;
class Recordset;

/// Lists the stock by category. Its connection stays open as long as the form is.
class PrtInventory : public VSregistryReport {
 public:
  static constexpr const char* kName = screen::kPrtInventory;
  explicit PrtInventory(Program& program);

 private:
  void Form_Load() override;
  void InventoryPreview();
  void ListCategory(const std::string& name, LongWork& work);
  void Form_Unload() override;

  Object<Inventory> inventory_;
  Object<Recordset> categories_;
  Object<Recordset> items_;  ///< of the category listed last
};

}  // namespace norvane
