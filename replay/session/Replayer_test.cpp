#include "replay/session/Replayer.h"

#include <QApplication>
#include <gtest/gtest.h>

#include "host/panels/PlugInLoader.h"
#include "host/panels/TrustedBundles.h"
#include "platform/qt/toolkit/QtToolkit.h"

namespace tavrin {
namespace {

// A replayer with the real plug-in, which lies beside the test program.
class ReplayerTest : public testing::Test {
 protected:
  ReplayerTest() { Toolkit::install(&toolkit); }
  ~ReplayerTest() override { Toolkit::install(nullptr); }

  void SetUp() override {
    const auto folder = findPlugIn(kOwnPlugInName);
    ASSERT_TRUE(folder) << folder.reason();
    auto loaded = loadPlugIn(*folder);
    ASSERT_TRUE(loaded) << loaded.reason();
    plugIn = std::move(*loaded);
    replayer = std::make_unique<Replayer>(*plugIn.principal, log, windows, pictures);
  }

  QtToolkit toolkit;
  EventLog log;
  Screenshots pictures;
  WindowAnswers windows{toolkit, log, pictures};
  LoadedPlugIn plugIn;
  std::unique_ptr<Replayer> replayer;
};

// The program has no event loop in which widgets could be deleted later.
TEST_F(ReplayerTest, NothingIsLeftOfAClosedPanel) {
  const auto before = QApplication::allWidgets().size();
  for (const char* line : {R"({"do":"open","ppd":null})", R"({"do":"panelView"})",
                           R"({"do":"willShow"})", R"({"do":"close"})"})
    EXPECT_EQ(replayer->play(line)["ok"], true) << line;
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

}  // namespace
}  // namespace tavrin
