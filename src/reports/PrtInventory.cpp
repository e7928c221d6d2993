#include "reports/PrtInventory.h"

#include <memory>

#include "core/FileNames.h"
#include "data/Inventory.h"
#include "forms/LongWork.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kItems{pages::TableBorder::List, ">0.5in|2.75in|>1in|^0.75in|^0.75in|1.75in;",
                           "Item#|Description|Charge|Par|In Stock|Warranty;"};

}  // namespace

PrtInventory::PrtInventory(Program& host) : VSregistryReport(host, kName, "Print Inventory") {
  SetReportLayout();
}

void PrtInventory::Form_Load() {
  Build("PrtInventory.Form_Load -", [this] {
    inventory_ = std::make_shared<Inventory>(workspace);
    inventory_->InitAccess(workspace.File(kDatabaseFile));
    inventory_->OpenCn();
    categories_ = inventory_->rsCategories();
    InventoryPreview();
  });
}

// A category without items isn't listed.
void PrtInventory::InventoryPreview() {
  Build("PrtInventory.InventoryPreview -", [this] {
    if (categories_->RecordCount() == 0) return NothingToPrint("No inventory in database to print");
    categories_->MoveFirst();
    StartList("Inventory", ListHeader("Inventory"));
    VSregistry.WriteParagraph("");
    LongWork work(program);
    for (; !categories_->Eof(); categories_->MoveNext()) {
      items_ = inventory_->rsInventory(convert.ToLong(categories_->Field(0)));
      if (items_->RecordCount() > 0) ListCategory(convert.ToText(categories_->Field(1)), work);
    }
    VSregistry.EndDocument();
  });
}

void PrtInventory::ListCategory(const std::string& name, LongWork& work) {
  WriteGroupTitle(name);
  ReportTable table(VSregistry, convert, kItems);
  for (; !items_->Eof(); items_->MoveNext(), work.Step()) {
    table.Row(items_->Field("ItemNum"), items_->Field("description"), Money{items_->Field("charge")},
              items_->Field("Par"), items_->Field("InStock"), items_->Field("Warranty"));
  }
  table.End();
}

void PrtInventory::Form_Unload() {
  const auto close = [](Object<Recordset>& rows) {
    if (IsOpen(rows.Share())) rows->Close();
  };
  IgnoringErrors([&] { close(items_); }, [&] { close(categories_); }, [&] { inventory_->CloseCn(); },
                 [&] { inventory_.Release(); });
}

}  // namespace norvane
