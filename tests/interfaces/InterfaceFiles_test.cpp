#include <map>

#include <gtest/gtest.h>

#include "controller/TavPDEController.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/FreshConflicts.h"

namespace tavrin {
namespace {

using Problems = std::vector<std::string>;

// Loads the real files for their real owners, keeps what they disagree on, and shows no window.
class CheckingToolkit final : public QtToolkit {
 public:
  std::shared_ptr<LoadedInterface> loadInterface(const Bundle&, const std::string& name,
                                                 InterfaceBindings bindings) override {
    auto loaded = loadInterfaceFrom(TAVRIN_RESOURCES "/" + name + ".ui", std::move(bindings));
    if (loaded) problems[name] = loaded->problems();
    return loaded;
  }
  bool runModalForWindow(Window&) override { return false; }

  std::map<std::string, Problems> problems;
};

class InterfaceFilesTest : public testing::Test {
 protected:
  InterfaceFilesTest() { Toolkit::install(&toolkit); }
  ~InterfaceFilesTest() override { Toolkit::install(nullptr); }

  FreshConflicts fresh;
  CheckingToolkit toolkit;
  PPDPtr ppd = makePPD(fullPrinter());
  std::unique_ptr<TavPDEController> controller =
      TavPDEController::initializeWithPPD(ppd.get(), kUTF8Encoding, nullptr, nullptr);
};

TEST_F(InterfaceFilesTest, ThePanelsFitsItsController) {
  ASSERT_NE(controller->mainView(), nullptr);
  EXPECT_EQ(toolkit.problems.at("TavrinPDENIB"), Problems{});
}

TEST_F(InterfaceFilesTest, TheConflictWindowsFitTheirController) {
  TavConflictController::initWithSettings(nullptr, nullptr, ppd.get(), &controller->pdeModel())
      ->processConflict();
  EXPECT_EQ(toolkit.problems.at("Conflicts"), Problems{});
}

}  // namespace
}  // namespace tavrin
