#pragma once

#include <memory>
#include <optional>
#include <string>

#include "data/FindSearch.h"
#include "forms/Form.h"

namespace norvane {

/// Finds anything: as one types, lists what of the business has all the words, and opens what is chosen.
class frmFind : public Form {
 public:
  static constexpr const char* kName = screen::kfrmFind;
  explicit frmFind(Program& program);

  /// The columns of FoundList. Only the first row of a kind names it; the last two are hidden.
  enum FoundColumn { kGroup, kWhat, kDetails, kDate, kAmount, kKind, kNumber };

  TextBox txtFind{*this, "txtFind", {.characters = 48}};
  Grid FoundList{*this, "FoundList", GridKind::List};
  Label lblFound{*this, "lblFound"};
  Button btnOpen{*this, "btnOpen", {.caption = "&Open", .isDefault = true}};
  Button btnClose{*this, "btnClose", {.caption = "&Close", .isCancel = true}};
  Timer tmrFind{*this, "tmrFind", 1, false};

 private:
  void Form_Load() override;
  void txtFind_Change();
  void txtFind_KeyDown(int keyCode);
  void tmrFind_Timer();
  void btnOpen_Click();

  void BeginSearch();
  void SearchTables();
  void Work();
  void ShowFound();
  void ListGroup(const FindSearch::Group& group);
  std::string GroupText(const FindSearch::Group& group) const;
  std::string FoundText() const;
  std::string RecordIn(int row) const;
  void MarkRecord(const std::string& record);

  std::shared_ptr<const FindTables> tables_;  ///< that are searched
  std::optional<FindSearch> search_;
  std::size_t listed_ = 0;  ///< how many had been found when the list was filled
};

}  // namespace norvane
