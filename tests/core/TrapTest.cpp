#include <vector>

#include "core/Given.h"
#include "core/Object.h"
#include "core/Trap.h"

namespace norvane {
namespace {

class ListingReporter : public Reporter {
 public:
  void Report(const std::string& text) override { reports.push_back(text); }
  std::vector<std::string> reports;
};

TEST(Trap, ReportsOnceAndLeavesTheBody) {
  ListingReporter reporter;
  int reached = 0;
  EXPECT_FALSE(Trap(reporter, "Client.Form_Load -", [&] {
    reached = 1;
    Raise(ErrorNumber::TypeMismatch);
    reached = 2;
  }));
  EXPECT_EQ(reached, 1);
  EXPECT_EQ(reporter.reports, std::vector<std::string>{
                                  "Client.Form_Load -13 Type mismatch.  If error persists contact Norvanes author."});
}

TEST(Trap, IsSilentWhenAllGoesWellAndLetsOtherFailuresPass) {
  ListingReporter reporter;
  EXPECT_TRUE(Trap(reporter, "A -", [] {}));
  EXPECT_THROW(Trap(reporter, "A -", [] { throw std::bad_alloc(); }), std::bad_alloc);
  EXPECT_TRUE(reporter.reports.empty());
  EXPECT_FALSE(Trap(
      reporter, "A -", [] { throw RuntimeError(-2147217865, "No such table"); }, "!"));
  EXPECT_EQ(reporter.reports.back(), "A --2147217865 No such table!");
}

TEST(IgnoringErrors, GoesOnAtTheNextStatement) {
  std::string trail;
  IgnoringErrors([&] { trail += 'a'; }, [&] { Raise(ErrorNumber::Overflow); }, [&] { trail += 'b'; });
  EXPECT_EQ(trail, "ab");
}

TEST(Object, OutlivesItsReplacementWhileItWorks) {
  struct Worker {
    Object<Worker>* variable;
    int number = 5;
    int ReplaceSelf() {
      *variable = std::make_shared<Worker>();
      return number;
    }
  };
  Object<Worker> worker = std::make_shared<Worker>();
  worker->variable = &worker;
  EXPECT_EQ(worker->ReplaceSelf(), 5);
  worker.Release();
  EXPECT_EQ(ErrorOf([&] { worker->ReplaceSelf(); }), 91);
}

}  // namespace
}  // namespace norvane
