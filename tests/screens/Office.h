#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>

#include "forms/Program.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "support/Database.h"
#include "support/Gestures.h"
#include "support/ScriptedDesktop.h"

namespace norvane::test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The program at work on a database of its own: a test fills the tables, starts the program, and uses it as a person
/// does.
class Office : public ::testing::Test {
 protected:
  explicit Office(const RegionalSettings& settings = {}) : program(desktop, settings, database.Folder()) {
    RegisterScreens(program);
  }

  void AddClient(int number, const std::string& lname, const std::string& fname) {
    database.Execute("INSERT INTO tb_Client (CustNum, Lname, Fname, Discount) VALUES (" + std::to_string(number) +
                     ", '" + lname + "', '" + fname + "', 0)");
  }
  /// Three clients, whose order by name is not the one of their numbers.
  void AddClients() {
    AddClient(1001, "Moss", "Carl");
    AddClient(1002, "Adams", "Bea");
    AddClient(1003, "Moss", "Ada");
  }
  /// Empty screens under these names, whatever the room has.
  void StandIn(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      program.screens.AddFactory(
          name, [name](Program& host) { return std::make_shared<Form>(host, name, FormStyle{.caption = name}); });
    }
  }
  void Start() { program.Start(Customer::kName); }
  void StartWithClients() {
    AddClients();
    Start();
  }

  /// The screen of that class, loaded if it isn't.
  template <class Screen>
  Screen& The() {
    return program.screens.Touch<Screen>();
  }
  Customer& Main() { return The<Customer>(); }
  bool IsOpen(const char* screen) { return program.screens.Find(screen) != nullptr; }
  void Select(int row) { Main().CustList2.UserClick(row, 2); }
  int Connections() { return program.engine.OpenConnections(database.File()); }

  /// Presses a button, or chooses a menu's entry, and answers the box that comes.
  void Press(Button& button, const char* box, Answer answer = Answer::Ok) {
    desktop.Expect(box, answer);
    button.Press();
  }
  void Choose(MenuEntry& entry, const char* box, Answer answer = Answer::Ok) {
    desktop.Expect(box, answer);
    entry.Choose();
  }
  void ExpectBoxes(std::initializer_list<const char*> fragments) {
    for (const char* fragment : fragments) desktop.Expect(fragment);
  }
  const Message& LastBox() { return desktop.boxes.back(); }
  /// That the last box was a question under this title, and a hasty Enter answers it with No.
  void ExpectQuestion(const std::string& title, Buttons buttons = Buttons::YesNo) {
    EXPECT_EQ(LastBox().title, title);
    EXPECT_EQ(LastBox().buttons, buttons);
    EXPECT_EQ(LastBox().icon, Icon::Question);
    EXPECT_EQ(LastBox().preselected, Answer::No);
  }

  Database database;
  ScriptedDesktop desktop;
  Program program;
  Globals& globals = program.globals;
};

}  // namespace norvane::test
