#include "tests/fakes/FakePPD.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace tavrin {
namespace {

const char* const kHeader =
    "*PPD-Adobe: \"4.3\"\n"
    "*FormatVersion: \"4.3\"\n"
    "*FileVersion: \"1.0\"\n"
    "*LanguageVersion: English\n"
    "*PCFileName: \"TAVRIN.PPD\"\n"
    "*Manufacturer: \"Tavrin\"\n"
    "*Product: \"(Tavrin)\"\n"
    "*NickName: \"Tavrin\"\n"
    "*ShortNickName: \"Tavrin\"\n"
    "*PSVersion: \"(3010) 0\"\n";

std::string keywordOf(const std::string& keywordAndText) {
  return keywordAndText.substr(0, keywordAndText.find('/'));
}

std::string optionLines(const PPDOptionText& option) {
  const std::string keyword = keywordOf(option.keyword);
  std::string lines = "*OpenUI *" + option.keyword + ": " + option.kind + "\n";
  lines += "*Default" + keyword + ": " + option.defaultChoice + "\n";
  for (const std::string& choice : option.choices) {
    lines += "*" + keyword + " " + choice + ": \"\"\n";
  }
  return lines + "*CloseUI: *" + keyword + "\n";
}

}  // namespace

std::string ppdText(const std::vector<PPDOptionText>& options,
                    const std::vector<std::string>& attributes) {
  std::string text = kHeader;
  bool named = false;
  bool encoded = false;
  for (const std::string& line : attributes) {
    named = named || line.starts_with("*ModelName");
    encoded = encoded || line.starts_with("*LanguageEncoding");
    text += line + "\n";
  }
  if (!named) text += "*ModelName: \"Tavrin P1\"\n";
  if (!encoded) text += "*LanguageEncoding: UTF-8\n";
  for (const PPDOptionText& option : options) text += optionLines(option);
  return text;
}

PPDPtr parsePPD(const std::string& text, bool markDefaults) {
  const int file = memfd_create("test.ppd", MFD_CLOEXEC);
  (void)!write(file, text.data(), text.size());
  lseek(file, 0, SEEK_SET);
  PPDPtr ppd(ppdOpenFd(file));  // closes the file
  if (!ppd) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    std::cerr << "PPD line " << line << ": " << ppdErrorString(status) << "\n" << text;
    std::abort();
  }
  if (markDefaults) ppdMarkDefaults(ppd.get());
  return ppd;
}

PPDPtr makePPD(const std::vector<PPDOptionText>& options,
               const std::vector<std::string>& attributes) {
  return parsePPD(ppdText(options, attributes));
}

void unmark(ppd_file_t& ppd, const std::string& option) {
  while (ppd_choice_t* marked = ppdFindMarkedChoice(&ppd, option.c_str())) {
    marked->marked = 0;
    cupsArrayRemove(ppd.marked, marked);
  }
}

PPDOptionText printQualityOption() {
  return {"PrintQuality/Print Quality",
          "PickOne",
          "Automatic",
          {"Automatic/Auto Quality", "Draft/Quick Print", "Normal/Normal Quality", "Best/Photo"}};
}

PPDOptionText paperTypeOption() {
  return {"MediaType/Paper Type",
          "PickOne",
          "Automatic",
          {"Automatic/Auto Paper", "Plain/Plain Paper", "IronOn/Iron-On Transfer",
           "Transparency/Transparency Film", "Greeting/Greeting Card", "PhotoGlossy/Glossy Photo"}};
}

PPDOptionText paperSourceOption() {
  return {"PaperSource/Paper Source", "PickOne", "Tray1", {"Tray1/Upper Tray", "Tray2/Lower Tray"}};
}

PPDOptionText colorModelOption() {
  return {"ColorModel/Color", "PickOne", "Color", {"Color/In Color", "Black/Black Ink"}};
}

PPDOptionText mirrorOption() {
  return {"Mirror/Mirror Image", "Boolean", "False", {"True/Mirrored", "False/Not Mirrored"}};
}

PPDOptionText sharpeningOption(const std::string& defaultChoice) {
  PPDOptionText option{"Sharpening/Image Sharpening", "PickOne", defaultChoice, {"Automatic/Auto"}};
  for (int amount = 0; amount <= 10; ++amount) {
    const char* const text = amount == 0 ? "/None" : amount == 10 ? "/Most" : "";
    option.choices.push_back(std::to_string(amount) + text);
  }
  return option;
}

PPDOptionText dryTimePopUpOption() {
  return {"DupDryTime/Dry Time",
          "PickOne",
          "Automatic",
          {"Automatic/Auto Dry", "Long/Long Dry", "Extra/Extra Long Dry"}};
}

PPDOptionText dryTimeCheckBoxOption(const std::string& defaultChoice) {
  return {"DupDryTime/Extra Dry Time", "Boolean", defaultChoice, {"True/Waits", "False/Runs"}};
}

PPDOptionText tray2Option(const std::string& installed) {
  return {"Tray2Option/Lower Tray", "Boolean", installed, {"True/Installed", "False/Missing"}};
}

PPDOptionText pageSizeOption() {
  return {"PageSize/Paper Size",
          "PickOne",
          "A4",
          {"A4/A4 Sheet", "EnvelopeDL/DL Envelope", "EnvelopeB5/B5 Envelope", "BannerBA4/Banner"}};
}

std::vector<PPDOptionText> fullPrinter() {
  return {pageSizeOption(),    printQualityOption(), paperTypeOption(),
          paperSourceOption(), colorModelOption(),   mirrorOption(),
          sharpeningOption(),  dryTimePopUpOption(), tray2Option("True")};
}

std::vector<std::string> customPaperAttributes() {
  return {"*VariablePaperSize: True",
          "*MaxMediaWidth: \"1000\"",
          "*MaxMediaHeight: \"1000\"",
          "*NonUIOrderDependency: 10 AnySetup *CustomPageSize",
          "*CustomPageSize True/Own Size: \"\"",
          "*ParamCustomPageSize Width: 1 points 36 1000",
          "*ParamCustomPageSize Height: 2 points 36 1000"};
}

PPDPtr officePPD() {
  return makePPD({pageSizeOption(),
                  paperTypeOption(),
                  mirrorOption(),
                  printQualityOption(),
                  {"Staple/Staple", "PickMany", "Left", {"Left", "Right", "Top"}},
                  {"Duplex/Two-Sided", "PickOne", "None", {"None", "DuplexTumble"}}});
}

}  // namespace tavrin
