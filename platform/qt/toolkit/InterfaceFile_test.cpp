#include "platform/qt/toolkit/InterfaceFile.h"

#include <fstream>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

#include "platform/qt/toolkit/InterfaceLoader.h"

namespace tavrin {
namespace {

QByteArray ui(const QByteArray& inside) {
  return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"root\">" + inside + "</widget></ui>";
}

TEST(InterfaceFile, TakesPlainWidgets) {
  EXPECT_TRUE(isSoundInterface(ui("<widget class=\"QLabel\" name=\"a\"/>")));
}

TEST(InterfaceFile, RefusesWhatIsNotAnInterface) {
  for (const char* bytes : {"", "<ui>", "hello", "<ui version=\"4.0\"/>", "<html/>"})
    EXPECT_FALSE(isSoundInterface(bytes)) << bytes;
}

TEST(InterfaceFile, RefusesWidgetsThatAPanelHasNoUseFor) {
  for (const char* name : {"QWebEngineView", "QAxWidget", "QFileDialog", "QTextBrowser", "Foreign"})
    EXPECT_FALSE(isSoundInterface(ui(QByteArray("<widget class=\"") + name + "\" name=\"a\"/>")))
        << name;
}

TEST(InterfaceFile, RefusesWhatReachesOutOfTheFile) {
  EXPECT_FALSE(isSoundInterface(
      ui("<property name=\"styleSheet\"><string>* { image: url(/dev/tty) }</string></property>")));
  EXPECT_FALSE(
      isSoundInterface(ui("<property name=\"text\"><pixmap>/dev/tty</pixmap></property>")));
  EXPECT_FALSE(
      isSoundInterface(ui("<property name=\"windowIcon\"><iconset>/dev/tty</iconset></property>")));
  EXPECT_FALSE(
      isSoundInterface("<ui version=\"4.0\"><customwidgets/><widget class=\"QWidget\" "
                       "name=\"root\"/></ui>"));
}

TEST(InterfaceFile, RefusesWhatExhaustsItsReader) {
  const QByteArray open = "<widget class=\"QWidget\" name=\"a\">";
  EXPECT_FALSE(isSoundInterface(ui(open.repeated(100) + QByteArray("</widget>").repeated(100))));
  EXPECT_FALSE(
      isSoundInterface(ui(QByteArray("<widget class=\"QLabel\" name=\"a\"/>").repeated(999))));
  EXPECT_FALSE(
      isSoundInterface(ui("<property name=\"maximum\"><number>2000000000</number></property>")));
  EXPECT_FALSE(isSoundInterface("<!DOCTYPE ui [<!ENTITY a \"aaaa\">]>" + ui("")));
  EXPECT_FALSE(
      isSoundInterface(ui("<layout class=\"QGridLayout\" name=\"l\"><item row=\"900000\" "
                          "column=\"0\"/></layout>")));
}

TEST(InterfaceFile, RefusesASecondWidgetInAScrollArea) {
  const auto area = [](const QByteArray& inside) {
    return ui("<widget class=\"QScrollArea\" name=\"s\">" + inside + "</widget>");
  };
  const QByteArray child =
      "<widget class=\"QWidget\" name=\"w\"><widget class=\"QLabel\" name=\"a\"/>"
      "<widget class=\"QLabel\" name=\"b\"/></widget>";
  EXPECT_TRUE(isSoundInterface(area(child)));
  EXPECT_FALSE(isSoundInterface(area(child + child)));
  EXPECT_FALSE(isSoundInterface(area("<layout class=\"QVBoxLayout\" name=\"l\"><item>" + child +
                                     "</item><item>" + child + "</item></layout>")));
}

TEST(InterfaceFile, RefusesNumbersInPieces) {
  for (const char* number :
       {"9<!-- -->99999", "9<![CDATA[999]]>99", "9<?x?>99999", "<!---->999999"})
    EXPECT_FALSE(isSoundInterface(
        ui(QByteArray("<property name=\"maximum\"><number>") + number + "</number></property>")))
        << number;
  EXPECT_TRUE(
      isSoundInterface(ui("<property name=\"maximum\"><number>9<!-- -->9</number></property>")));
}

TEST(InterfaceFile, RefusesLargeNumbersInAttributes) {
  const auto grid = [](const QByteArray& attribute) {
    return ui("<layout class=\"QGridLayout\" name=\"l\" " + attribute + "/>");
  };
  EXPECT_TRUE(isSoundInterface(grid("columnstretch=\"0,1\"")));
  EXPECT_FALSE(isSoundInterface(grid("rowminimumheight=\"0,2000000000\"")));
  EXPECT_FALSE(isSoundInterface(grid("columnstretch=\"2147483647, 1\"")));
}

class InterfaceFileOnDisk : public testing::Test {
 protected:
  std::filesystem::path write(const std::string& bytes) {
    const auto file = std::filesystem::path(folder.path().toStdString()) / "a.ui";
    std::ofstream(file) << bytes;
    return file;
  }

  QTemporaryDir folder;
};

TEST_F(InterfaceFileOnDisk, IsRead) { EXPECT_TRUE(readInterfaceFile(write(ui("").toStdString()))); }

TEST_F(InterfaceFileOnDisk, IsRefusedWhenItIsTooLarge) {
  EXPECT_FALSE(readInterfaceFile(write(ui("").toStdString() + std::string(300 * 1024, ' '))));
}

TEST_F(InterfaceFileOnDisk, IsNeitherAPipeNorAFolder) {
  const auto pipe = folder.filePath("pipe").toStdString();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(readInterfaceFile(pipe));
  EXPECT_FALSE(readInterfaceFile(folder.path().toStdString()));
  EXPECT_FALSE(readInterfaceFile(folder.filePath("missing").toStdString()));
}

TEST_F(InterfaceFileOnDisk, CutShortMakesNoWidgets) {
  const std::string whole = ui("<widget class=\"QLabel\" name=\"a\"/>").toStdString();
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_EQ(loadInterfaceFile(write(whole.substr(0, length))), nullptr) << length;
  EXPECT_NE(loadInterfaceFile(write(whole)), nullptr);
}

}  // namespace
}  // namespace tavrin
