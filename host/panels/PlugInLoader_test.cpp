#include "host/panels/PlugInLoader.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

// A bundle that is sound until a test breaks it.
class PlugInLoaderTest : public testing::Test {
 protected:
  PlugInLoaderTest() {
    describe("module.so", "SoundPlugIn");
    useModule(SOUND_MODULE);
  }
  ~PlugInLoaderTest() override { umask(usualUmask); }

  void describe(const std::string& executable, const std::string& principalClass,
                const std::string& panelType = kPrintDialogPanelType) {
    std::string entries;
    const auto add = [&](const std::string& key, const std::string& text) {
      if (!text.empty()) entries += "<key>" + key + "</key><string>" + text + "</string>";
    };
    add("CFBundleExecutable", executable);
    add("NSPrincipalClass", principalClass);
    add(kPanelTypeKey, panelType);
    place.write(
        "A.plugin/Contents/Info.plist",
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
  }
  void useModule(const fs::path& module) const {
    fs::create_directories(moduleFile.parent_path());
    fs::copy_file(module, moduleFile, fs::copy_options::overwrite_existing);
    fs::permissions(moduleFile, fs::perms::group_write, fs::perm_options::remove);
  }
  // Why the bundle is not loaded, without the plug-in's name in front; empty when it is loaded.
  std::string problem() const {
    const auto plugIn = loadPlugIn(bundle);
    if (plugIn) return "";
    const std::string start = "The plug-in \"" + bundle.string() + "\" ";
    EXPECT_TRUE(plugIn.reason().starts_with(start)) << plugIn.reason();
    return plugIn.reason().substr(std::min(start.size(), plugIn.reason().size()));
  }

  // What the user lets a group write to would not be safe to load.
  mode_t usualUmask = umask(022);
  test::TemporaryFolder place;
  fs::path bundle = place.path() / "A.plugin";
  fs::path moduleFile = bundle / "Contents/Linux/module.so";
};

TEST_F(PlugInLoaderTest, LoadsASoundBundle) {
  const auto plugIn = loadPlugIn(bundle);
  ASSERT_TRUE(plugIn) << plugIn.reason();
  EXPECT_NE(plugIn->principal, nullptr);
  EXPECT_EQ(plugIn->bundle->path(), bundle);
}

TEST_F(PlugInLoaderTest, SaysThatThereIsNoBundle) {
  const auto plugIn = loadPlugIn("/nowhere/A.plugin");
  ASSERT_FALSE(plugIn);
  EXPECT_EQ(plugIn.reason(), "There is no plug-in bundle \"/nowhere/A.plugin\".");
}

TEST_F(PlugInLoaderTest, SaysThatTheInformationIsMissingOrDamaged) {
  place.write("A.plugin/Contents/Info.plist", "<plist><dict><key>");
  EXPECT_EQ(problem(), "has no readable Contents/Info.plist. Install it again.");
  fs::remove(bundle / "Contents/Info.plist");
  EXPECT_EQ(problem(), "has no readable Contents/Info.plist. Install it again.");
}

TEST_F(PlugInLoaderTest, SaysWhatTheInformationLacks) {
  describe("", "SoundPlugIn");
  EXPECT_EQ(problem(), "names no executable file. Install it again.");
  describe("module.so", "");
  EXPECT_EQ(problem(), "names no principal class. Install it again.");
  describe("module.so", "SoundPlugIn", "");
  EXPECT_EQ(problem(), "does not say which panels it has. Install it again.");
}

TEST_F(PlugInLoaderTest, TakesOnlyAPlainNameForTheExecutable) {
  for (const char* name : {"../Linux/module.so", "/lib/module.so", "..", "."}) {
    describe(name, "SoundPlugIn");
    EXPECT_EQ(problem(), "names no executable file. Install it again.") << name;
  }
}

TEST_F(PlugInLoaderTest, SaysThatTheExecutableIsMissing) {
  fs::remove(moduleFile);
  EXPECT_EQ(problem(), "lacks its executable file, Contents/Linux/module.so. Install it again.");
  fs::create_directory(moduleFile);
  EXPECT_EQ(problem(), "lacks its executable file, Contents/Linux/module.so. Install it again.");
}

TEST_F(PlugInLoaderTest, RefusesAnExecutableOutsideOfTheBundle) {
  fs::rename(moduleFile, place.path() / "module.so");
  fs::create_symlink(place.path() / "module.so", moduleFile);
  EXPECT_EQ(problem(), "has an executable file that lies outside of it. Install it again.");
}

TEST_F(PlugInLoaderTest, RefusesABundleThatOthersCanChange) {
  const fs::path interface = place.write("A.plugin/Contents/Resources/Panel.ui", "");
  fs::permissions(interface, fs::perms::others_write, fs::perm_options::add);
  EXPECT_EQ(problem(), "is not safe to load: every user can write to \"" + interface.string() +
                           "\". Take that permission away with chmod go-w.");
}

TEST_F(PlugInLoaderTest, FollowsLinksToTheBundleFirst) {
  const fs::path link = place.path() / "Link.plugin";
  fs::create_directory_symlink("A.plugin", link);
  const auto plugIn = loadPlugIn(link);
  ASSERT_TRUE(plugIn) << plugIn.reason();
  EXPECT_EQ(plugIn->bundle->path(), bundle);

  const fs::path open = place.path() / "open";
  fs::create_directory(open);
  fs::permissions(open, fs::perms::others_all, fs::perm_options::add);
  fs::rename(bundle, open / "A.plugin");
  fs::remove(link);
  fs::create_directory_symlink("open/A.plugin", link);
  EXPECT_EQ(loadPlugIn(link).reason(), "The plug-in \"" + (open / "A.plugin").string() +
                                           "\" is not safe to load: every user can write to \"" +
                                           open.string() +
                                           "\". Take that permission away with chmod go-w.");
}

TEST_F(PlugInLoaderTest, TellsWhyTheLoaderRefusesAModule) {
  useModule(UNRESOLVED_MODULE);
  EXPECT_TRUE(problem().starts_with("does not load: ")) << problem();
  EXPECT_NE(problem().find("functionThatNobodyHas"), std::string::npos) << problem();
  place.write("A.plugin/Contents/Linux/module.so", "no module");
  EXPECT_TRUE(problem().starts_with("does not load: ")) << problem();
}

TEST_F(PlugInLoaderTest, SaysThatAModuleHasNoEntryPoint) {
  useModule(NO_ENTRY_MODULE);
  EXPECT_EQ(problem(),
            "is not a plug-in for this program: its executable file lacks the function "
            "tavrinPDEPrincipalObject.");
}

TEST_F(PlugInLoaderTest, SaysBothInterfaceVersions) {
  useModule(NEWER_MODULE);
  EXPECT_EQ(problem(), "was built against interface version " +
                           std::to_string(kPDEInterfaceVersion + 1) +
                           ", this program has version " + std::to_string(kPDEInterfaceVersion) +
                           ". Install the plug-in that belongs to this program.");
}

TEST_F(PlugInLoaderTest, SaysThatThePrincipalClassIsMissing) {
  describe("module.so", "OtherPlugIn");
  EXPECT_EQ(problem(), "lacks its principal class, \"OtherPlugIn\". Install it again.");
}

TEST_F(PlugInLoaderTest, DoesNotBelieveAModuleThatMadeNothing) {
  useModule(UNWILLING_MODULE);
  describe("module.so", "NeverMade");
  EXPECT_EQ(problem(), "lacks its principal class, \"NeverMade\". Install it again.");
}

TEST_F(PlugInLoaderTest, SaysThatAPlugInDoesNotWantToWork) {
  useModule(UNWILLING_MODULE);
  EXPECT_EQ(problem(), "cannot work on this machine.");
}

}  // namespace
}  // namespace tavrin
