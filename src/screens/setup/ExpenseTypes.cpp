#include "screens/setup/ExpenseTypes.h"

#include "screens/registry/GL.h"

namespace norvane {

namespace {

// Its buttons have no trap, and one routine reports under a name of its own.
constexpr TypeListKind kExpenseTypes{
    .name = ExpenseTypes::kName,
    .caption = "Edit / Add Expense Types",
    .heading = "Expense Types",
    .list = &Globals::rsExpenseTypes,
    .read = &cSetup::rsExpenseTypes,
    .save = &cSetup::SaveExpenseType,
    .remove = &cSetup::DeleteExpenseType,
    .labels = {.formLoad = "ExpenseTypes.Form_Load -",
               .click = "ExpenseTypes.PaymentList_Click -",
               .btnNew = {},
               .btnDelete = {}},
    .rowLabels = {.setOldRowStatus = "ExpenseTypes.SetOldRowStatus -",
                  .setNewRowStatus = "ExpenseTypes.SetNewStatus -",
                  .afterRowEdit = "ExpenseTypes.PaymentList_AfterRowEdit -",
                  .afterEdit = "ExpenseTypes.PaymentList_AfterEdit -",
                  .saveRow = "ExpenseTypes.SaveRow -",
                  .rowColChange = "ExpenseTypes.PaymentList_RowColChange -",
                  .lostFocus = "ExpenseTypes.PaymentList_LostFocus -"},
};

}  // namespace

ExpenseTypes::ExpenseTypes(Program& host) : TypeList(host, kExpenseTypes) {}

// The registry takes over the types, and is loaded for it if it isn't. Without types it keeps those that it has, and
// the error is reported once this screen is closed.
void ExpenseTypes::btnExit_Click() {
  TypeList::btnExit_Click();
  screens.Touch<GL>().OfferCategories();
}

}  // namespace norvane
