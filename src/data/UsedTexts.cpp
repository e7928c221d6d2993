#include "data/UsedTexts.h"

#include "core/FileNames.h"

namespace norvane {

UsedTexts::UsedTexts(Workspace& workspace) : DataObject(workspace) {
  InitAccess(workspace.File(kDatabaseFile));
}

std::vector<std::string> UsedTexts::Terms() {
  return TextsOf("Terms", "select Terms from tb_Invoice group by Terms order by Terms");
}

std::vector<std::string> UsedTexts::SalesReps() {
  return TextsOf("SalesRep", "select SalesRep from tb_Invoice group by SalesRep order by SalesRep");
}

std::vector<std::string> UsedTexts::Cities() {
  return TextsOf("City", "select City from tb_Client group by City order by City");
}

std::vector<std::string> UsedTexts::TextsOf(std::string_view column, std::string_view statement) {
  std::vector<std::string> texts;
  OpenCn();
  IgnoringErrors([&] {
    for (const auto rows = Read(statement); !rows->Eof(); rows->MoveNext()) {
      if (const std::string text = rows->Text(column); !text.empty()) texts.push_back(text);
    }
  });
  CloseCn();
  return texts;
}

}  // namespace norvane
