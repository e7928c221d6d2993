#pragma once

#include <string>
#include <string_view>

#include "data/cSetup.h"
#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

/// What is particular to each list of names that one table holds.
struct TypeListKind {
  const char* name;
  const char* caption;
  const char* heading;
  Object<Recordset> Globals::*list;  ///< the shared list, read again after each change
  Object<Recordset> (cSetup::*read)();
  void (cSetup::*save)(const std::string&);
  void (cSetup::*remove)(const std::string&);
  struct Labels {
    std::string_view formLoad, click, btnNew, btnDelete;
  } labels;
  RowEditingRules::Labels rowLabels;
};

/// A lookup table of names, edited in place. The name is the key, so an edit is stored at once, as a further row: a
/// changed name is in the table beside the old one.
class TypeList : public Form {
 public:
  TypeList(Program& program, const TypeListKind& kind);

  /// The columns of PaymentList.
  enum TypeColumn { kMarker, kType };

  Grid PaymentList{*this, "PaymentList", GridKind::Editable};
  Button btnNew{*this, "btnNew", {.caption = "&New", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.caption = "&Delete", .icon = "delete"}};
  Button btnExit{*this, "btnExit", {.caption = "&Exit", .icon = "exit"}};

 protected:
  virtual void btnExit_Click();

 private:
  void Form_Load() override;
  void PaymentList_AfterEdit(int row);
  void PaymentList_Click();
  void StoreRow(std::int32_t row);
  void ReadList();
  void btnDelete_Click();
  void Form_Unload() override;

  const TypeListKind& kind_;
  RowEditing rows_;
  std::string SelectedType;
};

}  // namespace norvane
