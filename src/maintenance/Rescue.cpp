#include "maintenance/Rescue.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "core/DateText.h"
#include "forms/Program.h"
#include "maintenance/DeliveredSchema.h"
#include "maintenance/Leftovers.h"
#include "maintenance/Working.h"
#include "store/Salvage.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// The tables as the user knows them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 12> kNames = {{
    {"tb_Client", "Clients"},
    {"tb_Invoice", "Invoices"},
    {"tb_trans", "Invoice lines"},
    {"tb_Receive", "Payments of clients"},
    {"tb_Inventory", "Items"},
    {"tb_InvCategories", "Item categories"},
    {"tb_Vendor", "Vendor companies"},
    {"tb_GL", "Register entries"},
    {"tb_Company", "Company"},
    {"tb_PaymentTypes", "Payment types"},
    {"tb_ExpenseTypes", "Expense types"},
    {"tb_Shipping", "Shipping charges"},
}};

std::string NameOf(const std::string& table) {
  const auto* const found = std::ranges::find(kNames, table, &std::pair<std::string_view, std::string_view>::first);
  return std::string(found == kNames.end() ? table : found->second);
}

std::string LineOf(const SalvagedTable& table) {
  std::string line = NameOf(table.name) + ":\t" + std::to_string(table.rows) + " saved";
  if (table.missing > 0) line += ", " + std::to_string(table.missing) + " missing";
  if (table.mayMissMore) line += table.missing > 0 ? ", perhaps more" : ", perhaps some missing";
  return line;
}

std::string ReportOf(const std::vector<SalvagedTable>& tables, const std::string& keptAs) {
  std::string text = "What could be read has been saved.\r\n";
  for (const SalvagedTable& table : tables) text += "\r\n" + LineOf(table);
  return text + "\r\n\r\nThe damaged file is kept as " + keptAs + ".";
}

bool WantsRescue(Desktop& desktop) {
  return desktop.Ask({.text =
                          "Try to save what can be read?\r\n\r\nA new file is made with every row that can still be "
                          "read. The damaged file is kept. A good backup or kept copy may hold more: see File, "
                          "Restore.",
                      .title = "Repair Data",
                      .buttons = Buttons::YesNo,
                      .icon = Icon::Question,
                      .preselected = Answer::No}) == Answer::Yes;
}

void Rescue(Program& program, const std::string& fileName) {
  const fs::path file = program.workspace.applicationFolder / fileName;
  const std::string keptAs = file.stem().string() + " damaged " +
                             FormatDate(program.desktop.Now(), "yyyy-MM-dd HH.mm.ss", {}) + file.extension().string();
  const auto tables = SalvageDatabase(program.engine, file, kDeliveredSchema, file.parent_path() / keptAs,
                                      WorkingNotice(program, "Saving what can be read").Report());
  program.desktop.Ask({.text = ReportOf(tables, keptAs), .title = "Repair Data", .icon = Icon::Information});
  OfferToRemoveLeftovers(program, fileName);
}

}  // namespace

void OfferRescue(Program& program, const std::string& fileName) {
  if (!WantsRescue(program.desktop)) return;
  try {
    Rescue(program, fileName);
  } catch (const RuntimeError& error) {
    program.desktop.Ask(
        {.text = std::to_string(error.Number()) + ": " + error.Text(), .title = "Repair Data", .icon = Icon::Critical});
  }
}

}  // namespace norvane
