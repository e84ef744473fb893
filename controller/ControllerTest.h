#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "controller/TavPDEController.h"
#include "tests/fakes/FakeJob.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakeToolkit.h"

namespace tavrin {

// A controller with its panel on a fake screen.
class ControllerTest : public testing::Test {
 protected:
  ControllerTest() {
    toolkit.onLoad = [](const std::string& name, FakeInterface& file) {
      if (name == "TavrinPDENIB") layOut(file);
    };
  }

  // The frames and flags of an interface file with easy numbers.
  static void layOut(FakeInterface& file) {
    file.view("ibPDEView").place = {0, 0, 400, 300};
    file.view("ibHeaderView").place = {0, 100, 400, 200};
    file.view("ibAdvancedView").place = {0, 0, 400, 100};
    file.label("ibPaperSourceLabel").place = {10, 45, 100, 20};
    file.popUp("ibPaperSource").place = {120, 45, 200, 20};
    file.button("ibDisclosure").place = {10, 5, 20, 20};
    file.label("ibDisclosureLabel").place = {40, 6, 100, 20};
    file.popUp("ibPaperSource").hidden = true;
    file.label("ibPaperSourceLabel").hidden = true;
    file.popUp("ibDryTimePopUp").hidden = true;
    file.label("ibDryTimeLabel").hidden = true;
    file.button("ibDryTimeCheckBox").hidden = true;
  }

  // The controller for a printer; its view loaded, its controls filled.
  void show(const std::vector<PPDOptionText>& options,
            const std::vector<std::string>& attributes = {}) {
    start(makePPD(options, attributes));
    view = controller->mainView();
    willShow();
  }

  // Only the controller, as before the host has asked for the view.
  void start(PPDPtr printer) {
    controller.reset();
    ppd = std::move(printer);
    const StringEncoding encoding = PDETools().getEncodingFromPPD(ppd.get());
    controller = TavPDEController::initializeWithPPD(ppd.get(), encoding, &settings, &format);
  }

  void willShow() {
    controller->initializeControls();
    controller->localizeLabels();
    controller->updateControls();
  }

  void mark(const char* option, const char* choice) { ppdMarkOption(ppd.get(), option, choice); }

  PDEModel& model() { return controller->pdeModel(); }
  FakeInterface& panel() { return *toolkit.interface("TavrinPDENIB"); }

  FakeToolkit toolkit;
  FakePrintSettings settings;
  FakePageFormat format;
  PPDPtr ppd;
  std::unique_ptr<TavPDEController> controller;
  std::shared_ptr<View> view;
};

}  // namespace tavrin
