#include "controller/SharpeningControls.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

class Sharpening : public ControllerTest {
 protected:
  FakeButton& automatic() { return panel().button("ibAutoImageSharpening"); }
  FakeButton& manual() { return panel().button("ibManualImageSharpening"); }
  FakeSlider& slider() { return panel().slider("ibManualImageSharpeningSlider"); }
  std::optional<TextColor> colorOfNone() { return panel().label("ibNoneLabel").color; }
  std::optional<TextColor> colorOfMost() { return panel().label("ibMostLabel").color; }
};

TEST_F(Sharpening, GreysTheEndsOfAnAutomaticDefault) {
  show(fullPrinter());
  EXPECT_EQ(automatic().state, 1);
  EXPECT_FALSE(slider().enabled);
  EXPECT_EQ(colorOfNone(), TextColor::grey);
  EXPECT_EQ(colorOfMost(), TextColor::grey);
}

TEST_F(Sharpening, LeavesTheSliderOfAnAutomaticDefaultWhereItStands) {
  start(makePPD({sharpeningOption()}));
  view = controller->mainView();
  slider().value = 4;
  controller->initializeControls();
  EXPECT_EQ(slider().value, 4);
}

TEST_F(Sharpening, IsLeftAloneWhereItAgrees) {
  start(makePPD({sharpeningOption("5")}));
  view = controller->mainView();
  model().setImageSharpeningTicket("5");
  willShow();
  EXPECT_EQ(colorOfNone(), std::nullopt);
  EXPECT_EQ(colorOfMost(), std::nullopt);
}

TEST_F(Sharpening, ReadsTheSliderWhereBothButtonsAreOn) {
  show(fullPrinter());
  manual().state = 1;
  slider().value = 3;
  model().setImageSharpeningTicket("3");
  controller->updateControls();
  EXPECT_EQ(automatic().state, 1) << "it agrees: nothing changes";
  model().setImageSharpeningTicket("Automatic");
  controller->updateControls();
  EXPECT_EQ(manual().state, 0);
}

TEST_F(Sharpening, FollowsTheModel) {
  show(fullPrinter());
  model().setImageSharpeningTicket("7");
  controller->updateControls();
  EXPECT_EQ(manual().state, 1);
  EXPECT_EQ(automatic().state, 0);
  EXPECT_TRUE(slider().enabled);
  EXPECT_EQ(slider().value, 7);
  EXPECT_EQ(colorOfNone(), TextColor::black);

  model().setImageSharpeningTicket("Automatic");
  controller->updateControls();
  EXPECT_EQ(automatic().state, 1);
  EXPECT_EQ(slider().value, 0);
  EXPECT_FALSE(slider().enabled);
}

TEST_F(Sharpening, CountsTheSliderBehindTheAutomaticChoice) {
  show(fullPrinter());
  panel().slide("ibManualImageSharpeningSlider", 10, "imageSharpeningSliderAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "10");
  EXPECT_EQ(model().imageSharpening(), "Most");
}

TEST_F(Sharpening, StartsAtNoneWhenItBecomesManual) {
  show(fullPrinter());
  panel().slide("ibManualImageSharpeningSlider", 10, "imageSharpeningSliderAction:");
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "0");
  EXPECT_EQ(automatic().state, 0);
  EXPECT_EQ(slider().value, 0);
  EXPECT_TRUE(slider().enabled);
  EXPECT_EQ(colorOfNone(), TextColor::black);
  EXPECT_EQ(colorOfMost(), TextColor::black);
}

TEST_F(Sharpening, GoesBackToAutomatic) {
  show(fullPrinter());
  panel().pick("ibManualImageSharpening", "manualImageSharpeningAction:");
  panel().pick("ibAutoImageSharpening", "autoImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "Automatic");
  EXPECT_EQ(model().imageSharpening(), "Auto");
  EXPECT_EQ(manual().state, 0);
  EXPECT_FALSE(slider().enabled);
  EXPECT_EQ(colorOfMost(), TextColor::grey);
}

TEST_F(Sharpening, IgnoresAButtonThatIsNotOn) {
  show(fullPrinter());
  panel().slide("ibManualImageSharpeningSlider", 4, "imageSharpeningSliderAction:");
  manual().state = 1;
  panel().click("ibManualImageSharpening", "manualImageSharpeningAction:");
  automatic().state = 1;
  panel().click("ibAutoImageSharpening", "autoImageSharpeningAction:");
  EXPECT_EQ(model().imageSharpeningTicket(), "4");
}

}  // namespace
}  // namespace tavrin
