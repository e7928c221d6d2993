#include "screens/setup/PaymentCategories.h"

namespace norvane {

namespace {

constexpr TypeListKind kPaymentTypes{
    .name = PaymentCategories::kName,
    .caption = "Edit / Add Payment Categories",
    .heading = "Payment Type",
    .list = &Globals::rsPaymentTypes,
    .read = &cSetup::rsPaymentTypes,
    .save = &cSetup::SavePaymentType,
    .remove = &cSetup::DeletePaymentType,
    .labels = {.formLoad = "PaymentCategories.Form_Load -",
               .click = "PaymentCategories.PaymentList_Click -",
               .btnNew = "PaymentCategories.btnNew_Click -",
               .btnDelete = "PaymentCategories.btnDelete_Click -"},
    .rowLabels = {.setOldRowStatus = "PaymentCategories.SetOldRowStatus -",
                  .setNewRowStatus = "PaymentCategories.SetNewRowStatus -",
                  .afterRowEdit = "PaymentCategories.AfterRowEdit -",
                  .afterEdit = "PaymentCategories.PaymentList_AfterEdit -",
                  .saveRow = "PaymentCategories.SaveRow -",
                  .rowColChange = "PaymentCategories.PaymentList_RowColChange -"},
};

}  // namespace

PaymentCategories::PaymentCategories(Program& host) : TypeList(host, kPaymentTypes) {}

}  // namespace norvane
