#include "screens/registry/LedgerTypes.h"

namespace norvane {

LedgerTypes::LedgerTypes(Program& host)
    : Form(host, kName, {.caption = "Select Entry Type", .resizable = false, .goesWithOwner = true}) {
  using namespace layout;
  SetLayout(Column({btnNextCheckNum, btnDeposit, btnATM, btnTransfer, btnOther,
                    Field("Enter other type here", txtOther), Strip({Space(), btnCancel})}));
  SetExitButton(btnCancel);
  for (Button* button : {&btnNextCheckNum, &btnDeposit, &btnATM, &btnTransfer, &btnOther}) button->Click = [] {};
  btnCancel.Click = [this] { Unload(); };
}

}  // namespace norvane
