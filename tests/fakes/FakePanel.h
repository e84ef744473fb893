#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/panels/PlugInLoader.h"

namespace tavrin {

// What happened to a panel, in order. Outlives the panel.
struct PanelDiary {
  std::vector<std::string> calls;
  std::vector<std::pair<std::string, OptString>> told;  // of choices made elsewhere
};

// A panel that claims "MediaType", hands over what a test wants, and writes down what it is told.
class FakePanel final : public PDEPanel {
 public:
  FakePanel(PDEPlugInCallback& theHost, PanelDiary& theDiary) : host(theHost), diary(theDiary) {}

  std::string panelKind() override { return "test.panel"; }
  std::string panelName() override { return "Paper & Ink"; }
  std::shared_ptr<View> panelView() override { return nullptr; }
  void willShow() override { diary.calls.emplace_back("willShow"); }
  bool shouldHide() override {
    diary.calls.emplace_back("shouldHide");
    return true;
  }
  bool saveValuesAndReturnError(std::string*) override {
    diary.calls.emplace_back("save");
    host.willChangePPDOptionKeyValue("MediaType", chosen);
    return true;
  }
  bool restoreValuesAndReturnError(std::string*) override {
    const ppd_choice_t* marked = ppdFindMarkedChoice(host.ppdFile(), "MediaType");
    diary.calls.push_back(std::string("restore ") + (marked ? marked->choice : "nothing"));
    return true;
  }
  std::vector<std::string> supportedPPDOptionKeys() override { return {"MediaType"}; }
  void PPDOptionKeyValueDidChange(const OptString& key, const OptString& choice) override {
    diary.told.emplace_back(*key, choice);
  }
  std::map<std::string, OptString> summaryInfo() override { return {{"Paper Type", chosen}}; }
  bool shouldShowHelp() override { return true; }

  OptString chosen = "IronOn";
  PDEPlugInCallback& host;

 private:
  PanelDiary& diary;
};

// A plug-in with one such panel.
class FakePlugIn final : public PDEPlugIn {
 public:
  explicit FakePlugIn(PanelDiary& theDiary) : diary(theDiary) {}

  static LoadedPlugIn loaded(PanelDiary& diary) {
    return {std::make_unique<Bundle>(), std::make_unique<FakePlugIn>(diary)};
  }

  bool initWithBundle(const Bundle*) override { return true; }
  std::optional<PDEPanels> PDEPanelsForType(const std::string& type,
                                            PDEPlugInCallback* host) override {
    if (type != kPrintDialogPanelType) return std::nullopt;
    PDEPanels panels;
    panels.push_back(std::make_unique<FakePanel>(*host, diary));
    return panels;
  }

 private:
  PanelDiary& diary;
};

}  // namespace tavrin
