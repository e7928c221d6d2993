#include "TestForms.h"

namespace norvane::test {
namespace {

/// A form with the controls that hold a text.
class ControlsForm : public Form {
 public:
  ControlsForm(Program& program_, Log& log) : Form(program_, "Controls", {.width = 4000, .height = 3000}) {
    const auto note = [&log](std::string what) { return [&log, what] { log.push_back(what); }; };
    other.LostFocus = note("other.LostFocus");
    text.Change = note("text.Change");
    date.Change = note("date.Change");
    any.Change = note("any.Change");
    any.Click = note("any.Click");
    items.Change = note("items.Change");
    items.Click = note("items.Click");
    SetLayout(layout::Column({other, text, date, any, items}));
  }

  TextBox other{*this, "other"};
  TextBox text{*this, "text"};
  MaskedBox date{*this, "date"};
  ComboBox any{*this, "any"};
  ComboBox items{*this, "items", ComboStyle::ItemsOnly};
  StatusBar bar{*this, "bar"};
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
  form().text.UserType("a\r\nb\tc");
  EXPECT_THAT(Taken(), ElementsAre("other.LostFocus", "text.Change"));
  EXPECT_EQ(form().text.Text(), "a b c");
  form().date.SetText("");
  form().date.SetText("__/__/__");
  EXPECT_THAT(Taken(), IsEmpty());
  EXPECT_EQ(NumberOf([&] { form().text.SetWidth(-1); }), 5);
  EXPECT_EQ(NumberOf([&] { form().text.SetHeight(-1); }), 5);
  EXPECT_EQ(NumberOf([&] { form().bar.SetPanelText(1, ""); }), 9);
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
}

TEST_F(ControlsTest, ACombosTextAndItsItems) {
  ComboBox& any = form().any;
  any.AddItem("Rent");
  any.AddItem("Food");
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

  ComboBox& items = form().items;
  items.AddItem("All Clients");
  EXPECT_EQ(NumberOf([&] { items.SetText("Nobody"); }), 383);
  items.UserType("Nobody");
  EXPECT_EQ(items.Text(), "");
  EXPECT_THAT(Taken(), IsEmpty());
  items.UserType("All Clients");
  EXPECT_THAT(Taken(), ElementsAre("items.Change", "items.Click"));
}

}  // namespace
}  // namespace norvane::test
