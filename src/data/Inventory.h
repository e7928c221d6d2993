#pragma once

#include <cstdint>
#include <string>

#include "core/Currency.h"
#include "data/DataObject.h"

namespace norvane {

/// One stock item, the categories of items, and the count of what is in stock.
class Inventory : public DataObject {
 public:
  /// What QtyInStock returns for an item whose stock isn't counted.
  static constexpr std::int32_t kNotCounted = -999'999;

  explicit Inventory(Workspace& workspace) : DataObject(workspace) {}

  std::int32_t ItemNum = 0;
  std::int32_t Category = 1;  ///< the item's category
  std::string description;
  Currency charge;           ///< price of one unit
  std::int32_t Par = 0;      ///< target stock; above 0 the item's stock is counted
  std::int32_t InStock = 0;  ///< below 0 for a shortage
  std::string Warranty = "0";
  bool StockCounted = false;  ///< whether the last QtyInStock came to its end
  std::int32_t CatNum = 0;    ///< the category saved last; it has nothing to do with the item

  /// The items of a category by number.
  Object<Recordset> rsInventory(std::int32_t category);
  /// All categories by number: catnum, description.
  Object<Recordset> rsCategories();
  /// Loads the properties of an item, Warranty left as it is. An unknown number makes this an empty item with the next
  /// free number.
  void GetItem(std::int32_t itemNumber);
  /// Saves the properties as the row of `itemNum`. 0 asks for the next free number, which is passed back; it stays 0 if
  /// there is none or the new row is refused.
  void SaveItemAccess(std::int32_t& itemNum);
  /// Saves through the server's procedure. Errors go to the caller.
  void SaveItem();
  void DeleteItem(std::int32_t itemNumber);
  /// Saves a category; 0 asks for the next free number. The number used is left in CatNum, 0 if there is none
  /// or the new row is refused.
  void SaveCategory(std::int32_t catNum, const std::string& text);
  /// Deletes the category and all its items.
  void DeleteCategory(std::int32_t catNumber);
  /// Takes the growth of an invoice line from currentQuantity to newQuantity units out of stock. Returns the new stock,
  /// below 0 if there wasn't enough, or kNotCounted; 0 after a report.
  std::int32_t QtyInStock(std::int32_t itemNumber, std::int32_t currentQuantity, std::int32_t newQuantity);

 private:
  void Blank();
  std::int32_t NewItemNum();
  std::int32_t NewCategoryNum();
};

}  // namespace norvane
