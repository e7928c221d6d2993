#include <map>
#include <set>

#include "Office.h"

namespace norvane::test {
namespace {

using layout::Kind;
using layout::Node;

/// The character after the ampersand, in lower case; 0 for none.
char Accelerator(const std::string& caption) {
  const auto at = caption.find('&');
  return at == std::string::npos || at + 1 == caption.size()
             ? '\0'
             : static_cast<char>(std::tolower(static_cast<unsigned char>(caption[at + 1])));
}

bool NeedsLabel(const Control& control) {
  return dynamic_cast<const TextBox*>(&control) || dynamic_cast<const MaskedBox*>(&control) ||
         dynamic_cast<const ComboBox*>(&control) || dynamic_cast<const DatePicker*>(&control);
}

std::string CaptionOf(const Node& node) {
  if (node.kind == Kind::Field) return node.caption;
  if (auto* button = dynamic_cast<const Button*>(node.control)) return button->Caption();
  if (auto* option = dynamic_cast<const OptionButton*>(node.control)) return option->Caption();
  return "";
}

/// One walk through a form's layout, collecting what breaks the rules of a good screen.
class Inspection {
 public:
  explicit Inspection(const Form& form) : form_(form) {
    std::string keys;
    for (const MenuEntry* entry : form.MenuBar()) Claim(keys, entry->Caption(), entry->Name());
    Walk(form.Layout(), false, keys);
    for (const MenuEntry* entry : form.MenuBar()) WalkMenu(*entry);
    CheckControls();
  }
  const std::vector<std::string>& Faults() const { return faults_; }

 private:
  void Fault(const std::string& text) { faults_.push_back(form_.Name() + ": " + text); }

  /// Of the controls that can be seen at one time, no two may have one accelerator.
  void Claim(std::string& keys, const std::string& caption, const std::string& who) {
    const char key = Accelerator(caption);
    if (key == '\0') return;
    if (keys.find(key) != std::string::npos) Fault("accelerator " + std::string(1, key) + " taken twice, by " + who);
    keys += key;
  }

  void Walk(const Node& node, bool labelled, std::string& keys) {
    Claim(keys, CaptionOf(node), node.control ? node.control->Name() : node.caption);
    if (node.control) CheckPlaced(*node.control, labelled);
    const Control* before = nullptr;
    const std::string outside = keys;
    for (const Node& child : node.children) {
      const bool behindLabel = dynamic_cast<const Label*>(before) != nullptr;
      const bool isLabelled = behindLabel || (node.kind == Kind::Field ? !node.caption.empty() : labelled);
      std::string tabKeys = outside;
      Walk(child, isLabelled, child.kind == Kind::Tab ? tabKeys : keys);
      before = child.control;
    }
  }

  void CheckPlaced(const Control& control, bool labelled) {
    if (!placed_.insert(&control).second) Fault(control.Name() + " is in the layout twice");
    if (NeedsLabel(control) && !labelled && control.ToolTip().empty()) Fault(control.Name() + " has no label");
  }

  /// Within a menu entries may share a key, which then goes from one to the next.
  void WalkMenu(const MenuEntry& entry) {
    for (const MenuEntry* child : entry.Entries()) WalkMenu(*child);
    if (entry.Entries().empty() && entry.Enabled() && !entry.Click.HasHandler()) Fault(entry.Name() + " does nothing");
  }

  void CheckControls() {
    std::set<std::string> names;
    for (const Control* control : form_.Controls()) {
      if (control->Name().empty() || !names.insert(control->Name()).second)
        Fault(control->Name() + " is no name of its own");
      const bool drawn = !dynamic_cast<const Timer*>(control) && !dynamic_cast<const MenuEntry*>(control);
      if (drawn && !placed_.contains(control)) Fault(control->Name() + " is nowhere in the layout");
      if (auto* button = dynamic_cast<const Button*>(control)) CheckButton(*button);
    }
  }

  void CheckButton(const Button& button) {
    if (!button.Click.HasHandler()) Fault(button.Name() + " does nothing");
    if (button.Caption().empty() && (button.ToolTip().empty() || button.Style().icon.empty())) {
      Fault(button.Name() + " has neither caption nor picture and tooltip");
    }
  }

  const Form& form_;
  std::set<const Control*> placed_;
  std::vector<std::string> faults_;
};

class AllScreensTest : public Office {};

TEST_F(AllScreensTest, AreLaidOutLabelledAndWired) {
  AddClients();
  database.Execute("INSERT INTO tb_Vendor (VendorNum, Company, Discount) VALUES (1001, 'Acme', 0)");
  Start();
  const auto names = program.screens.Names();
  ASSERT_GT(names.size(), 10u);
  for (const std::string& name : names) {
    const Inspection inspection(program.screens.Touch(name));
    for (const std::string& fault : inspection.Faults()) ADD_FAILURE() << fault;
  }
}

}  // namespace
}  // namespace norvane::test
