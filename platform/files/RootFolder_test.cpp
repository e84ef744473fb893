#include "platform/files/RootFolder.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

class RootFolder : public testing::Test {
 protected:
  ~RootFolder() override { setRootFolder({}); }
};

TEST_F(RootFolder, IsEmptyUntilAProgramSetsIt) {
  EXPECT_EQ(pathBelowRoot("/Library/Printers"), "/Library/Printers");
}

TEST_F(RootFolder, StandsBeforeAbsolutePaths) {
  setRootFolder("/srv/printers");
  EXPECT_EQ(pathBelowRoot("/Library/Printers"), "/srv/printers/Library/Printers");
  EXPECT_EQ(pathBelowRoot("//Library"), "/srv/printers/Library");
  setRootFolder({});
  EXPECT_EQ(pathBelowRoot("/Library"), "/Library");
}

TEST_F(RootFolder, KeepsWhatOnlyLooksLikeAWayOut) {
  setRootFolder("/srv");
  EXPECT_EQ(pathBelowRoot("/a..b/...c"), "/srv/a..b/...c");
}

TEST_F(RootFolder, IsNotLeft) {
  for (const char* root : {"", "/srv"}) {
    setRootFolder(root);
    EXPECT_EQ(pathBelowRoot("/Library/../../etc"), "");
    EXPECT_EQ(pathBelowRoot("/.."), "");
    EXPECT_EQ(pathBelowRoot("Library"), "");
    EXPECT_EQ(pathBelowRoot(""), "");
    EXPECT_EQ(pathBelowRoot(std::string("/etc\0x", 6)), "");
  }
}

}  // namespace
}  // namespace tavrin
