#include "data/Inventory.h"

#include "core/Rounding.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kItems{"tb_Inventory", "ItemNum"};
constexpr NumberedTable kCategories{"tb_Invcategories", "catNum", 0};

/// Raises 6 past a Long's range.
std::int32_t Minus(std::int32_t a, std::int32_t b) {
  return RoundToLong(static_cast<double>(a) - b);
}

}  // namespace

Object<Recordset> Inventory::rsInventory(std::int32_t category) {
  return List("Inventory.rsInventory -",
              sql::Statement("select * from tb_Inventory where CatNum = ", category, " order by itemnum"));
}

Object<Recordset> Inventory::rsCategories() {
  return List("Inventory.rsCategories -", "select catnum, description from tb_InvCategories order by catnum");
}

void Inventory::GetItem(std::int32_t itemNumber) {
  Trapped("Inventory.GetItem -", [&] {
    const auto row =
        ReadRecord(sql::Statement("select * from tb_Inventory where ItemNum = ", itemNumber), [this] { Blank(); });
    if (row->Eof()) {
      Blank();
      ItemNum = NewItemNum();
    } else {
      ItemNum = row->Long("ItemNum");
      Category = row->Long("CatNum");
      description = RequiredText(*row, "description");
      charge = row->Currency("charge");
      Par = row->Long("Par");
      InStock = row->Long("InStock");
    }
  });
}

void Inventory::Blank() {
  ItemNum = 0;
  Category = 1;
  description.clear();
  charge = Currency();
  Par = 0;
  InStock = 0;
}

void Inventory::SaveItemAccess(std::int32_t& itemNum) {
  Trapped("Inventory.SaveItemAccess -", [&] {
    SaveNumbered(
        kItems, itemNum, [&] { return NewItemNum(); },
        [&] {
          Replace(sql::Statement("Delete * from tb_Inventory where ItemNum = ", itemNum),
                  sql::Insert(
                      "Insert into tb_Inventory (ItemNum, CatNum, Description,charge,par,instock,warranty) values (",
                      itemNum, Category, description, charge, Par, InStock, Warranty));
        });
  });
  ItemNum = itemNum;
}

void Inventory::SaveItem() {
  RunProcedure("sp_insert_Inventory", {{"@ItemNum", ParameterType::Integer, 0, ItemNum},
                                       {"@Description", ParameterType::Char, 256, description},
                                       {"@Charge", ParameterType::Currency, 0, charge},
                                       {"@Par", ParameterType::Integer, 0, Par},
                                       {"@InStock", ParameterType::Integer, 0, InStock}});
}

void Inventory::DeleteItem(std::int32_t itemNumber) {
  Trapped("Inventory.DeleteItem -",
          [&] { Run(sql::Statement("delete * from tb_inventory where ItemNum = ", itemNumber)); });
}

void Inventory::SaveCategory(std::int32_t catNum, const std::string& text) {
  Trapped("Inventory.SaveCategory -", [&] {
    CatNum = catNum;
    SaveNumbered(
        kCategories, CatNum, [&] { return NewCategoryNum(); },
        [&] {
          Replace(sql::Statement("Delete * from tb_InvCategories where CatNum = ", CatNum),
                  sql::Insert("Insert into tb_InvCategories (CatNum, Description) values (", CatNum, text));
        });
  });
}

void Inventory::DeleteCategory(std::int32_t catNumber) {
  Trapped("Inventory.DeleteCategory -", [&] {
    Run(sql::Statement("delete * from tb_invCategories where CatNum = ", catNumber));
    Run(sql::Statement("delete * from tb_inventory where CatNum = ", catNumber));
  });
}

std::int32_t Inventory::QtyInStock(std::int32_t itemNumber, std::int32_t currentQuantity, std::int32_t newQuantity) {
  std::int32_t result = 0;
  StockCounted = Trapped("Inventory.QtyInStock -", [&] {
    const auto item = ReadToUpdate(sql::Statement("select * from tb_inventory where ItemNum = ", itemNumber));
    if (item->Long("Par") > 0) {
      const std::int32_t left = Minus(item->Long("InStock"), Minus(newQuantity, currentQuantity));
      item->SetField("InStock", left);
      item->Update();
      result = left;
    } else {
      result = kNotCounted;
    }
  });
  return result;
}

std::int32_t Inventory::NewItemNum() {
  return Result("Inventory.NewItemNum -", [&] { return NextKey(kItems); });
}

std::int32_t Inventory::NewCategoryNum() {
  return Result("Inventory.NewCategoryNum -", [&] { return NextKey(kCategories); });
}

}  // namespace norvane
