#include "host/panels/PlugInSafety.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

// A safe bundle in a folder of the user's in a sticky one of root's, until a test spoils it.
class PlugInSafetyTest : public testing::Test {
 protected:
  PlugInSafetyTest() {
    for (const char* file : {"Info.plist", "Linux/module.so", "Resources/TavrinPDENIB.ui",
                             "Resources/de.lproj/pages/index.html"})
      place.write(fs::path("plugins/A.plugin/Contents") / file, "");
  }
  ~PlugInSafetyTest() override { umask(usualUmask); }

  static void chmod(const fs::path& path, int mode) {
    fs::permissions(path, static_cast<fs::perms>(mode));
  }
  static void give(const fs::path& path, uid_t owner) {
    EXPECT_EQ(chown(path.c_str(), owner, owner), 0) << path;
  }
  std::string danger() const { return dangerIn(bundle); }
  static std::string everyUserWrites(const fs::path& path) {
    return "every user can write to \"" + path.string() +
           "\". Take that permission away with chmod go-w.";
  }

  mode_t usualUmask = umask(022);
  test::TemporaryFolder place;
  fs::path plugIns = place.path() / "plugins";
  fs::path bundle = plugIns / "A.plugin";
  fs::path resources = bundle / "Contents/Resources";
};

TEST_F(PlugInSafetyTest, TrustsWhatIsRootsOrTheUsers) {
  EXPECT_EQ(danger(), "");
  EXPECT_EQ(dangerIn("/etc/passwd"), "");
}

// Only root can give a folder away; an ordinary user's is a stranger's to everybody else.
TEST_F(PlugInSafetyTest, NamesTheStrangerWhoOwnsAFolderAbove) {
  const bool isRoot = geteuid() == 0;
  if (isRoot) give(place.path(), 4711);
  const std::string found = dangerIn(bundle, isRoot ? 0 : geteuid() + 1);
  EXPECT_NE(found.find("\" belongs to the user \""), std::string::npos) << found;
  EXPECT_TRUE(found.ends_with(
      "\". Make it root's or your own with chown, or install the plug-in elsewhere."))
      << found;
}

TEST_F(PlugInSafetyTest, TrustsTheUserThatItIsToldOf) {
  const bool isRoot = geteuid() == 0;
  if (isRoot) give(bundle / "Contents/Info.plist", 4711);
  EXPECT_EQ(dangerIn(bundle, isRoot ? 4711 : geteuid()), "");
  EXPECT_NE(dangerIn(bundle, 4712), "");
}

TEST_F(PlugInSafetyTest, RefusesWhatOthersCanWriteToInTheBundleAndAboveIt) {
  for (const fs::path& path :
       {place.path(), plugIns, bundle, bundle / "Contents", bundle / "Contents/Info.plist",
        bundle / "Contents/Linux/module.so", resources, resources / "TavrinPDENIB.ui",
        resources / "de.lproj/pages", resources / "de.lproj/pages/index.html"}) {
    const int mode = fs::is_directory(path) ? 0755 : 0644;
    chmod(path, mode | 0002);
    EXPECT_EQ(danger(), everyUserWrites(path));
    chmod(path, mode | 0020);
    EXPECT_EQ(danger(), "everybody in its group can write to \"" + path.string() +
                            "\". Take that permission away with chmod go-w.");
    chmod(path, mode);
  }
}

TEST_F(PlugInSafetyTest, RefusesAStickyFolderInTheBundleButNotAboveIt) {
  chmod(plugIns, 01777);
  EXPECT_EQ(danger(), "");
  chmod(resources, 01777);
  EXPECT_EQ(danger(), everyUserWrites(resources)) << "anybody could add a file";
}

TEST_F(PlugInSafetyTest, FollowsTheLinksInTheBundle) {
  const fs::path outside = place.write("outside/pages/index.html", "");
  fs::create_symlink("../../../../outside", resources / "relative");
  fs::create_symlink(outside, resources / "index.html");
  EXPECT_EQ(danger(), "");
  chmod(outside, 0666);
  EXPECT_EQ(danger(), everyUserWrites(outside));
  chmod(outside, 0644);
  chmod(place.path() / "outside", 0777);
  EXPECT_NE(danger(), "");
}

TEST_F(PlugInSafetyTest, LooksAtEachFolderThatALinkLeadsThrough) {
  fs::create_symlink(place.write("good/index.html", ""), place.path() / "second");
  fs::create_directory(place.path() / "open");
  fs::create_symlink("../second", place.path() / "open/first");
  fs::create_symlink(place.path() / "open/first", resources / "index.html");
  EXPECT_EQ(danger(), "");
  chmod(place.path() / "open", 0777);
  EXPECT_EQ(danger(), everyUserWrites(place.path() / "open"));
}

TEST_F(PlugInSafetyTest, RefusesALinkToWhatAnybodyCouldStillPutThere) {
  chmod(plugIns, 01777);
  fs::create_symlink(plugIns / "later", resources / "later");
  EXPECT_EQ(danger(), "\"" + (plugIns / "later").string() +
                          "\" cannot be read: No such file or directory. Install the plug-in "
                          "again.");
}

TEST_F(PlugInSafetyTest, ComesToAnEndWithLinksThatGoRound) {
  fs::create_symlink("..", resources / "up");
  fs::create_symlink(".", resources / "here");
  EXPECT_EQ(danger(), "");
  fs::create_symlink("self", resources / "self");
  fs::create_symlink("pong/x", resources / "ping");
  fs::create_symlink("ping/x", resources / "pong");
  EXPECT_NE(danger().find("cannot be read"), std::string::npos) << danger();
}

TEST_F(PlugInSafetyTest, RefusesWhatIsNeitherAFileNorAFolder) {
  ASSERT_EQ(mkfifo((resources / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(danger(), "\"" + (resources / "pipe").string() +
                          "\" is neither a file nor a folder. Install the plug-in again.");
  fs::remove(resources / "pipe");
  fs::create_symlink("/dev/null", resources / "null");
  EXPECT_NE(danger(), "");
}

TEST_F(PlugInSafetyTest, GivesUpOnAMonstrousBundle) {
  for (std::size_t i = 0; i < kMostPlacesInBundle; ++i)
    fs::create_symlink("TavrinPDENIB.ui", resources / std::to_string(i));
  EXPECT_EQ(danger(), "it holds more than 10000 files. Install it again.");
}

}  // namespace
}  // namespace tavrin
