#include "ppd/PDEModel.h"

#include <vector>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Getter = const OptString& (PDEModel::*)() const;
using Setter = void (PDEModel::*)(OptString);
using OptionGetter = ppd_option_t* (PDEModel::*)() const;
using OptionSetter = void (PDEModel::*)(ppd_option_t*);

struct Text {
  Getter get;
  Setter set;
};

const std::vector<Text> kTexts = {
    {&PDEModel::printQuality, &PDEModel::setPrintQuality},
    {&PDEModel::paperType, &PDEModel::setPaperType},
    {&PDEModel::paperSource, &PDEModel::setPaperSource},
    {&PDEModel::blackAndWhite, &PDEModel::setBlackAndWhite},
    {&PDEModel::mirror, &PDEModel::setMirror},
    {&PDEModel::imageSharpening, &PDEModel::setImageSharpening},
    {&PDEModel::dryTime, &PDEModel::setDryTime},
    {&PDEModel::printQualityTicket, &PDEModel::setPrintQualityTicket},
    {&PDEModel::paperTypeTicket, &PDEModel::setPaperTypeTicket},
    {&PDEModel::paperSourceTicket, &PDEModel::setPaperSourceTicket},
    {&PDEModel::blackAndWhiteTicket, &PDEModel::setBlackAndWhiteTicket},
    {&PDEModel::mirrorTicket, &PDEModel::setMIrrorTicket},
    {&PDEModel::imageSharpeningTicket, &PDEModel::setImageSharpeningTicket},
    {&PDEModel::dryTimeTicket, &PDEModel::setDryTimeTicket},
};

struct Option {
  OptionGetter get;
  OptionSetter set;
};

const std::vector<Option> kOptions = {
    {&PDEModel::printQualityOption, &PDEModel::setPrintQualityOption},
    {&PDEModel::paperTypeOption, &PDEModel::setPaperTypeOption},
    {&PDEModel::paperSourceOption, &PDEModel::setPaperSourceOption},
    {&PDEModel::dryTimePopUpOption, &PDEModel::setDryTimePopUpOption},
    {&PDEModel::dryTimeCheckBoxOption, &PDEModel::setDryTimeCheckBoxOption},
    {&PDEModel::blackAndWhiteOption, &PDEModel::setBlackAndWhiteOption},
    {&PDEModel::imageSharpeningOption, &PDEModel::setImageSharpeningOption},
    {&PDEModel::mirrorOption, &PDEModel::setMirrorOption},
};

TEST(PDEModel, IsEmptyAtFirst) {
  const PDEModel model;
  for (const Text& text : kTexts) EXPECT_EQ((model.*text.get)(), std::nullopt);
  for (const Option& option : kOptions) EXPECT_EQ((model.*option.get)(), nullptr);
}

TEST(PDEModel, KeepsEveryTextInAPlaceOfItsOwn) {
  PDEModel model;
  for (std::size_t i = 0; i < kTexts.size(); ++i) (model.*kTexts[i].set)(std::to_string(i));
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    EXPECT_EQ((model.*kTexts[i].get)(), std::to_string(i));
  }
}

TEST(PDEModel, KeepsEveryOptionInAPlaceOfItsOwn) {
  PDEModel model;
  std::vector<ppd_option_t> records(kOptions.size());
  for (std::size_t i = 0; i < kOptions.size(); ++i) (model.*kOptions[i].set)(&records[i]);
  for (std::size_t i = 0; i < kOptions.size(); ++i) {
    EXPECT_EQ((model.*kOptions[i].get)(), &records[i]);
  }
}

TEST(PDEModel, KnowsAbsentFromEmpty) {
  PDEModel model;
  for (const Text& text : kTexts) {
    (model.*text.set)("");
    EXPECT_EQ((model.*text.get)(), "");
    (model.*text.set)(std::nullopt);
    EXPECT_EQ((model.*text.get)(), std::nullopt);
  }
}

TEST(PDEModel, AnswersForASettingAsItsNamedFunctionsDo) {
  ppd_option_t record{};
  PDEModel model;
  model.bind(Setting::mirror, &record);
  model.choose(Setting::mirror, {"On", "True"});
  EXPECT_EQ(model.mirrorOption(), &record);
  EXPECT_EQ(model.mirror(), "On");
  EXPECT_EQ(model.mirrorTicket(), "True");
  model.setMIrrorTicket("False");
  EXPECT_EQ(model.choice(Setting::mirror), (SettingChoice{"On", "False"}));
}

TEST(PDEModel, HasOneDryTimeWhicheverKindOfOptionItIsBoundTo) {
  ppd_option_t record{};
  PDEModel popUp;
  popUp.setDryTimePopUpOption(&record);
  EXPECT_EQ(popUp.option(Setting::dryTime), &record);
  EXPECT_EQ(popUp.dryTimeCheckBoxOption(), nullptr);
  PDEModel checkBox;
  checkBox.setDryTimeCheckBoxOption(&record);
  EXPECT_EQ(checkBox.option(Setting::dryTime), &record);
  EXPECT_EQ(checkBox.dryTimePopUpOption(), nullptr);
}

TEST(PDEModel, MayBeGivenTheTextThatItHolds) {
  PDEModel model;
  model.setMirror("On");
  model.setMirror(model.mirror());
  EXPECT_EQ(model.mirror(), "On");
}

}  // namespace
}  // namespace tavrin
