#pragma once

#include "data/UsedTexts.h"
#include "forms/Controls.h"

namespace norvane {

/// Offers in a box what was entered for it before. It is read when the box gets the focus first.
void Suggest(TextBox& box, Workspace& workspace, std::vector<std::string> (UsedTexts::*read)());

}  // namespace norvane
