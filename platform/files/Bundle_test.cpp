#include "platform/files/Bundle.h"

#include <dlfcn.h>
#include <memory>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/CurrentFolder.h"
#include "tests/fixtures/Environment.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/fixtures/XmlList.h"

namespace tavrin {
namespace {

using test::LocaleEnvironment;
using test::xmlDictionary;
using test::xmlEntry;
using test::xmlList;
using Languages = std::vector<std::string>;

TEST(UserLanguages, GoFromTheMostSpecificToTheLeast) {
  const LocaleEnvironment locale{{"LC_ALL", "pt_BR.UTF-8"}};
  EXPECT_EQ(userLanguages(), (Languages{"pt_BR", "pt"}));
}

TEST(UserLanguages, KeepTheModifierInFront) {
  const LocaleEnvironment locale{{"LANG", "sr_RS.UTF-8@latin"}};
  EXPECT_EQ(userLanguages(), (Languages{"sr_RS@latin", "sr@latin", "sr_RS", "sr"}));
}

TEST(UserLanguages, TheStrongestVariableDecides) {
  const LocaleEnvironment all{
      {"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "it_IT"}};
  EXPECT_EQ(userLanguages(), (Languages{"de_DE", "de"}));
  const LocaleEnvironment messages{{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "it_IT"}};
  EXPECT_EQ(userLanguages(), (Languages{"fr_FR", "fr"}));
  const LocaleEnvironment lang{{"LANG", "it_IT"}};
  EXPECT_EQ(userLanguages(), (Languages{"it_IT", "it"}));
}

TEST(UserLanguages, AListOfLanguagesGoesBeforeTheLocale) {
  const LocaleEnvironment locale{{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "de_AT:fr::de"}};
  EXPECT_EQ(userLanguages(), (Languages{"de_AT", "de", "fr"}));
}

TEST(UserLanguages, AreEmptyInTheCLocale) {
  for (const char* name : {"C", "POSIX", "C.UTF-8"}) {
    const LocaleEnvironment locale{{"LC_ALL", name}, {"LANGUAGE", "de"}};
    EXPECT_EQ(userLanguages(), Languages()) << name;
  }
  const LocaleEnvironment nothing{{"LANGUAGE", "de"}};
  EXPECT_EQ(userLanguages(), Languages());
}

TEST(UserLanguages, EndWithTheLanguageOfTheKeys) {
  const LocaleEnvironment english{{"LANG", "de_DE"}, {"LANGUAGE", "en_GB:de"}};
  EXPECT_EQ(userLanguages(), (Languages{"en_GB", "en"}));
  const LocaleEnvironment keys{{"LANG", "de_DE"}, {"LANGUAGE", "fr:C:de"}};
  EXPECT_EQ(userLanguages(), Languages{"fr"});
}

TEST(UserLanguages, AreFitForFolderNames) {
  const LocaleEnvironment locale{{"LANG", "de"}, {"LANGUAGE", "../../etc:/:a b:.:it"}};
  EXPECT_EQ(userLanguages(), Languages{"it"});
}

class BundleTest : public testing::Test {
 protected:
  void writeTable(const std::string& language, const std::string& bytes) {
    folder.write("Contents/Resources/" + language + ".lproj/Localizable.strings", bytes);
  }
  Bundle bundle() const { return Bundle::atPath(folder.path()); }

  test::TemporaryFolder folder;
  LocaleEnvironment locale{{"LC_ALL", "pt_BR.UTF-8"}};
};

TEST_F(BundleTest, AnswersFromItsInformationDictionary) {
  folder.write("Contents/Info.plist", xmlDictionary(xmlEntry("CFBundleExecutable", "Sample") +
                                                    "<key>Number</key><true/>"));
  ASSERT_NE(bundle().infoDictionary(), nullptr);
  EXPECT_EQ(bundle().info("CFBundleExecutable"), "Sample");
  EXPECT_FALSE(bundle().info("Number"));
  EXPECT_FALSE(bundle().info("missing"));
  EXPECT_EQ(bundle().path(), folder.path());
}

TEST_F(BundleTest, OfTheEmptyPathIsEmptyWhateverTheCurrentFolderHolds) {
  folder.write("Contents/Info.plist", xmlDictionary(xmlEntry("CFBundleExecutable", "Sample")));
  writeTable("pt", xmlDictionary(xmlEntry("Quality", "Qualidade")));
  const test::CurrentFolder current(folder.path());
  const Bundle nothing = Bundle::atPath("");
  EXPECT_EQ(nothing.infoDictionary(), nullptr);
  EXPECT_EQ(nothing.localizedString("Quality"), "Quality");
}

TEST_F(BundleTest, WithoutADictionaryHasNoInformation) {
  EXPECT_EQ(bundle().infoDictionary(), nullptr);
  for (const char* information : {"<string>text</string>", "<array/>", "<dict>"}) {
    folder.write("Contents/Info.plist", xmlList(information));
    EXPECT_EQ(bundle().infoDictionary(), nullptr) << information;
    EXPECT_FALSE(bundle().info("CFBundleExecutable"));
  }
}

TEST_F(BundleTest, TakesEachTextFromTheNearestLanguage) {
  writeTable("pt_BR", xmlDictionary(xmlEntry("Quality", "Qualidade BR")));
  writeTable("pt", xmlDictionary(xmlEntry("Quality", "Qualidade") + xmlEntry("Paper", "Papel")));
  writeTable("de", xmlDictionary(xmlEntry("Source", "Quelle")));
  EXPECT_EQ(bundle().localizedString("Quality"), "Qualidade BR");
  EXPECT_EQ(bundle().localizedString("Paper"), "Papel");
  EXPECT_EQ(bundle().localizedString("Source"), "Source");
}

TEST_F(BundleTest, AnUnusableTableIsAsIfAbsent) {
  writeTable("pt", xmlDictionary(xmlEntry("Paper", "Papel")));
  for (const std::string& table :
       {std::string("\"Paper\" = \"Folha\";"), xmlList("<array><string>Paper</string></array>"),
        std::string(), xmlDictionary("<key>Paper</key><integer>1</integer>"),
        xmlDictionary(xmlEntry("Paper", "Pap\xE9"))}) {
    writeTable("pt_BR", table);
    EXPECT_EQ(bundle().localizedString("Paper"), "Papel") << table;
  }
}

TEST_F(BundleTest, ShowsTheKeysToReadersOfEnglish) {
  writeTable("de", xmlDictionary(xmlEntry("Paper", "Papier")));
  const LocaleEnvironment english{{"LANG", "en_US.UTF-8"}, {"LANGUAGE", "en:de"}};
  EXPECT_EQ(bundle().localizedString("Paper"), "Paper");
  writeTable("en", xmlDictionary(xmlEntry("Paper", "Paper Type")));
  EXPECT_EQ(bundle().localizedString("Paper"), "Paper Type");
  const LocaleEnvironment c{{"LC_ALL", "C"}};
  EXPECT_EQ(bundle().localizedString("Paper"), "Paper");
}

TEST_F(BundleTest, FindsResourcesInTheNearestLanguage) {
  EXPECT_FALSE(bundle().resource("Panel.ui"));
  const auto neutral = folder.write("Contents/Resources/Panel.ui", "");
  EXPECT_EQ(bundle().resource("Panel.ui"), neutral);
  const auto translated = folder.write("Contents/Resources/pt.lproj/Panel.ui", "");
  EXPECT_EQ(bundle().resource("Panel.ui"), translated);
}

TEST_F(BundleTest, ResourcesArePlainFiles) {
  folder.write("Contents/Resources/pt.lproj/Panel.ui", "");
  folder.write("Contents/Resources/.hidden", "");
  folder.write("Contents/Info.plist", "");
  ASSERT_EQ(mkfifo((folder.path() / "Contents/Resources/Fifo.ui").c_str(), 0600), 0);
  for (const char* name : {"", ".", "..", ".hidden", "../Info.plist", "pt.lproj/Panel.ui",
                           "pt.lproj", "Fifo.ui", "/etc/passwd"}) {
    EXPECT_FALSE(bundle().resource(name)) << name;
  }
  EXPECT_FALSE(bundle().resource(std::string("Panel.ui\0", 9)));
}

TEST(EmptyBundle, HasNothing) {
  const Bundle none;
  EXPECT_EQ(none.infoDictionary(), nullptr);
  EXPECT_FALSE(none.info("CFBundleName"));
  EXPECT_EQ(none.localizedString("Paper"), "Paper");
  EXPECT_FALSE(none.resource("Panel.ui"));
}

TEST(BundleForCode, IsTheOneAroundTheModule) {
  const std::unique_ptr<void, int (*)(void*)> module(dlopen(SAMPLE_MODULE, RTLD_NOW), dlclose);
  ASSERT_NE(module, nullptr) << dlerror();
  const Bundle bundle = Bundle::forCode(dlsym(module.get(), "sampleFunction"));
  EXPECT_EQ(bundle.path(),
            std::filesystem::path(SAMPLE_MODULE).parent_path().parent_path().parent_path());
}

TEST(BundleForCode, IsEmptyForOtherCode) {
  static const int inThisProgram = 0;
  EXPECT_EQ(Bundle::forCode(&inThisProgram).path(), "");
  EXPECT_EQ(Bundle::forCode(nullptr).path(), "");
  const auto somewhere = std::make_unique<int>();
  EXPECT_EQ(Bundle::forCode(somewhere.get()).path(), "");
}

}  // namespace
}  // namespace tavrin
