#include "host/panes/Mnemonics.h"

#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Mnemonics, AreThoseOfButtonsAndOfLabelsWithAControl) {
  QWidget window;
  QPushButton print("&Print", &window);
  QPushButton plain("Cancel", &window);
  QLabel title("C&opies:", &window);
  title.setBuddy(&print);
  const QLabel text("Salt && &Pepper", &window);
  QString letters = mnemonicsIn(window);
  std::sort(letters.begin(), letters.end());
  EXPECT_EQ(letters, "OP");
}

TEST(Mnemonics, AreTheFirstLettersThatNobodyHas) {
  QString taken = "PRT";
  EXPECT_EQ(withFreeMnemonic("Print Settings", taken), "Pr&int Settings");
  EXPECT_EQ(withFreeMnemonic("Printer Features", taken), "Pri&nter Features");
  EXPECT_EQ(withFreeMnemonic("Tip", taken), "Tip") << "nothing is left";
}

TEST(Mnemonics, LeaveTheSignsOfANameAsTheyAre) {
  QString taken;
  EXPECT_EQ(withFreeMnemonic("(Ink & Paper)", taken), "(&Ink && Paper)");
}

}  // namespace
}  // namespace tavrin
