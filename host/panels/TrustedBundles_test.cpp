#include "host/panels/TrustedBundles.h"

#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

TEST(TrustedBundles, FindsABundleByTheLastPathComponentAlone) {
  test::TemporaryFolder first, second;
  fs::create_directory(first.path() / "A.plugin");
  fs::create_directory(second.path() / "A.plugin");
  fs::create_directory(second.path() / "B.plugin");
  const std::vector folders{first.path(), second.path()};
  EXPECT_EQ(*findPlugIn("/Library/Printers/X/A.plugin", folders), first.path() / "A.plugin");
  EXPECT_EQ(*findPlugIn("B.plugin", folders), second.path() / "B.plugin");
}

TEST(TrustedBundles, LooksNowhereElse) {
  test::TemporaryFolder trusted, other;
  fs::create_directory(other.path() / "A.plugin");
  const auto found = findPlugIn((other.path() / "A.plugin").string(), {trusted.path()});
  ASSERT_FALSE(found);
  EXPECT_EQ(found.reason(), "The plug-in \"A.plugin\" is not installed; it was looked for in " +
                                trusted.path().string() + ".");
}

TEST(TrustedBundles, RefusesWhatIsNoBundleName) {
  test::TemporaryFolder trusted;
  fs::create_directories(trusted.path() / "sub/A.plugin");
  for (const char* name : {"", "/", "..", "A", "/x/..", ".plugin", "A.plugin/", "../A.plugin/.."})
    EXPECT_FALSE(findPlugIn(name, {trusted.path(), trusted.path() / "sub"})) << name;
}

TEST(TrustedBundles, TrustsTheProgramsFolderThenTheUsers) {
  setenv("XDG_DATA_HOME", "/data", 1);
  const auto folders = trustedPlugInFolders();
  ASSERT_EQ(folders.size(), 2u);
  EXPECT_EQ(folders[0].filename(), "tavrin");
  EXPECT_EQ(folders[0].parent_path().filename(), "lib");
  EXPECT_EQ(folders[1], "/data/tavrin/plugins");
}

TEST(TrustedBundles, LieInTheHomeFolderByDefault) {
  unsetenv("XDG_DATA_HOME");
  setenv("HOME", "/home/ada", 1);
  EXPECT_EQ(trustedPlugInFolders().at(1), "/home/ada/.local/share/tavrin/plugins");
}

TEST(TrustedBundles, AreNotTakenFromWhereTheProgramHappensToRun) {
  setenv("XDG_DATA_HOME", "relative", 1);
  EXPECT_EQ(trustedPlugInFolders().size(), 1u);
  unsetenv("XDG_DATA_HOME");
}

TEST(DialogExtension, IsThePlugInThatAPPDNames) {
  const PPDPtr ppd = makePPD({}, {"*APDialogExtension: \"/Library/Printers/T/T.plugin\""});
  EXPECT_EQ(dialogExtension(ppd.get()), "/Library/Printers/T/T.plugin");
  EXPECT_EQ(dialogExtension(makePPD({}).get()), std::nullopt);
  EXPECT_EQ(dialogExtension(nullptr), std::nullopt);
}

}  // namespace
}  // namespace tavrin
