#include "platform/toolkit/Toolkit.h"

#include <gtest/gtest.h>

#include "platform/files/Bundle.h"

namespace tavrin {
namespace {

class FakeToolkit final : public Toolkit {
 public:
  std::shared_ptr<LoadedInterface> loadInterface(const Bundle&, const std::string&,
                                                 InterfaceBindings) override {
    return nullptr;
  }
  bool runModalForWindow(Window&) override { return true; }
  void stopModal() override {}
};

TEST(Toolkit, BeforeOneIsInstalledNothingLoadsAndNothingRuns) {
  EXPECT_EQ(Toolkit::current().loadInterface(Bundle(), "Conflicts", {}), nullptr);
  EXPECT_FALSE(Toolkit::current().runModalForWindow(nullObject<Window>()));
  Toolkit::current().stopModal();
}

TEST(Toolkit, IsTheOneThatTheProgramInstalled) {
  FakeToolkit toolkit;
  Toolkit::install(&toolkit);
  EXPECT_EQ(&Toolkit::current(), &toolkit);
  Toolkit::install(nullptr);
  EXPECT_NE(&Toolkit::current(), &toolkit);
}

}  // namespace
}  // namespace tavrin
