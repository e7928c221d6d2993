#include "screens/Suggestions.h"

#include <functional>

namespace norvane {

void Suggest(TextBox& box, Workspace& workspace, std::vector<std::string> (UsedTexts::*read)()) {
  box.GotFocus = [&box, &workspace, read] {
    if (!box.Suggestions().empty()) return;
    UsedTexts used(workspace);
    box.SetSuggestions(std::invoke(read, used));
  };
}

}  // namespace norvane
