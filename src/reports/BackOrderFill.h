#pragma once

#include "forms/Form.h"

namespace norvane {

/// The lines on back order that the stock can fill now, and the picking list for them.
///
/// The stock of an item was taken when its lines were entered, those on back order included: what is there to hand out
/// is the count plus all units on back order. It goes to the oldest invoice first, line by line and unit by unit, and a
/// line is listed if it gets all of its units: a younger line never takes what an older one still waits for. Items
/// whose stock isn't counted are never listed.
class BackOrderFill : public Form {
 public:
  static constexpr const char* kName = screen::kBackOrderFill;
  explicit BackOrderFill(Program& program);

  /// The columns of InventoryList; the last isn't shown.
  enum LineColumn {
    kTransNum,
    kInvoiceDate,
    kItemNum,
    kInvoiceNum,
    kDescription,
    kQty,
    kClient,
    kOrderDate,
    kSalesRep
  };

  Grid InventoryList{*this, "InventoryList", GridKind::List};
  Button btnPrint{*this,
                  "btnPrint",
                  {.caption = "&Print and Clear Selected Backorder",
                   .toolTip = "Print the picking list of the marked lines and clear their back orders",
                   .icon = "print"}};
  Button Command2{*this, "Command2", {.toolTip = "Exit Back Orders", .icon = "exit"}};

 private:
  void Form_Load() override;
  void SetForm();
  void btnPrint_Click();
  bool ClearMarked();
};

}  // namespace norvane
