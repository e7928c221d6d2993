#include "TestForms.h"

namespace norvane::test {
namespace {

/// A form with one of each control that raises more than its focus.
class ControlsForm : public Form {
 public:
  ControlsForm(Program& program_, Log& log) : Form(program_, "Controls", {.width = 4000, .height = 3000}) {
    const auto note = [&log](std::string what) { return [&log, what] { log.push_back(what); }; };
    other.LostFocus = note("other.LostFocus");
    text.Change = note("text.Change");
    date.Change = note("date.Change");
    client.Click = note("client.Click");
    billing.Click = note("billing.Click");
    any.Change = note("any.Change");
    any.Click = note("any.Click");
    items.Change = note("items.Change");
    items.Click = note("items.Click");
    picker.Change = note("picker.Change");
    month.DateClick = [&log](Date day) { log.push_back("month.DateClick " + std::to_string(day.Day())); };
    month.KeyDown = [&log](int key) { log.push_back("month.KeyDown " + std::to_string(key)); };
    entry.Click = note("entry.Click");
    SetLayout(layout::Column({other, text, date, client, billing, any, items, picker, month}));
  }

  TextBox other{*this, "other"};
  TextBox text{*this, "text"};
  MaskedBox date{*this, "date"};
  OptionButton client{*this, "client", "Client", "source"};
  OptionButton billing{*this, "billing", "Billing", "source"};
  OptionButton apart{*this, "apart", "Apart", "others"};
  ComboBox any{*this, "any"};
  ComboBox items{*this, "items", ComboStyle::ItemsOnly};
  DatePicker picker{*this, "picker"};
  MonthView month{*this, "month"};
  StatusBar bar{*this, "bar"};
  MenuEntry menu{*this, "menu", "&File"};
  MenuEntry entry{menu, "entry", "E&xit"};
};

class ControlsTest : public FormsTest {
 protected:
  void SetUp() override {
    program.screens.AddFactory("Controls",
                               [this](Program& program_) { return std::make_shared<ControlsForm>(program_, log); });
    program.screens.Show("Controls");
  }
  ControlsForm& form() { return static_cast<ControlsForm&>(program.screens.Touch("Controls")); }
};

TEST_F(ControlsTest, ATextRaisesChangeIfItDiffers) {
  form().text.SetText("a");
  form().text.SetText("a");
  EXPECT_THAT(Taken(), ElementsAre("text.Change"));
  form().text.UserType("b");
  EXPECT_THAT(Taken(), ElementsAre("other.LostFocus", "text.Change"));
}

TEST_F(ControlsTest, MaskedDates) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"11/22/26", "11/22/26"}, {"112226", "11/22/26"},     {"1/5/24", "01/05/24"},   {"11/22/2026", "11/22/26"},
      {"", "__/__/__"},         {"1", "1_/__/__"},          {"11/2", "11/2_/__"},     {"1_/__/__", "1_/__/__"},
      {"abc", "__/__/__"},      {"1122269999", "11/22/26"}, {"__/__/__", "__/__/__"},
  };
  for (const auto& [typed, shown] : cases) {
    form().date.SetText("12/31/99");
    form().date.SetText(typed);
    EXPECT_EQ(form().date.Text(), shown) << typed;
  }
  Taken();
  form().date.SetText("");
  form().date.SetText("__/__/__");
  EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(ControlsTest, OptionsOfAGroupExcludeEachOther) {
  form().apart.SetValue(true);
  form().client.SetValue(true);
  form().client.SetValue(true);
  form().billing.Press();
  EXPECT_THAT(Taken(), ElementsAre("client.Click", "other.LostFocus", "billing.Click"));
  EXPECT_FALSE(form().client.Value());
  EXPECT_TRUE(form().apart.Value());
  form().billing.SetValue(false);
  EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(ControlsTest, ACombosTextAndItsItems) {
  ComboBox& any = form().any;
  any.AddItem("Rent");
  any.AddItem("Food");
  EXPECT_EQ(any.Text(), "");
  any.SetText("Food");
  EXPECT_THAT(Taken(), ElementsAre("any.Change", "any.Click"));
  EXPECT_EQ(any.ListIndex(), 1);
  any.SetText("anything");
  EXPECT_THAT(Taken(), ElementsAre("any.Change"));
  any.UserType("Rent");
  EXPECT_THAT(Taken(), ElementsAre("other.LostFocus", "any.Change"));
  any.UserPick(0);
  EXPECT_THAT(Taken(), ElementsAre("any.Click")) << "a pick of what is shown changes nothing";
  any.UserPick(1);
  EXPECT_THAT(Taken(), ElementsAre("any.Change", "any.Click"));
  any.Clear();
  EXPECT_EQ(any.Text(), "");
  EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(ControlsTest, AnItemsOnlyComboTakesNothingElse) {
  ComboBox& items = form().items;
  items.AddItem("All Clients");
  try {
    items.SetText("Nobody");
    ADD_FAILURE() << "took a text that is no item";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 383);
  }
  items.UserType("Nobody");
  EXPECT_EQ(items.Text(), "");
  EXPECT_THAT(Taken(), IsEmpty());
  items.UserType("All Clients");
  EXPECT_THAT(Taken(), ElementsAre("other.LostFocus", "items.Change", "items.Click"));
}

TEST_F(ControlsTest, PickersAndCalendars) {
  form().picker.SetValue(Date(10));
  form().picker.UserPick(Date(10));
  EXPECT_THAT(Taken(), ElementsAre("picker.Change", "other.LostFocus"));
  form().month.UserClick(Date(100));
  form().month.UserKey(static_cast<int>(Key::Left));
  form().month.UserKey(static_cast<int>(Key::Down));
  form().month.UserKey(static_cast<int>(Key::Enter));
  EXPECT_THAT(Taken(), ElementsAre("month.DateClick 100", "month.KeyDown 37", "month.KeyDown 40", "month.KeyDown 13"));
  EXPECT_EQ(form().month.Value(), Date(106));
}

TEST_F(ControlsTest, AMenuEntryMovesNoFocus) {
  form().entry.Choose();
  EXPECT_THAT(Taken(), ElementsAre("entry.Click"));
  form().entry.SetEnabled(false);
  form().entry.Choose();
  EXPECT_THAT(Taken(), IsEmpty());
  EXPECT_THAT(form().MenuBar(), ElementsAre(&form().menu));
  EXPECT_THAT(form().menu.Entries(), ElementsAre(&form().entry));
}

TEST_F(ControlsTest, RefusalsOfPlacesAndPanels) {
  const auto number = [](const auto& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(number([&] { form().text.SetWidth(-1); }), 5);
  EXPECT_EQ(number([&] { form().text.SetHeight(-1); }), 5);
  EXPECT_EQ(number([&] { form().bar.SetPanelText(1, ""); }), 9);
  form().bar.AddPanel("clock", 3500);
  EXPECT_EQ(number([&] { form().bar.SetPanelText(1, "later"); }), 0);
  EXPECT_EQ(form().bar.Panels()[0].text, "later");
}

}  // namespace
}  // namespace norvane::test
