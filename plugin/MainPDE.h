#pragma once

#include <memory>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "controller/TavPDEController.h"
#include "platform/contract/PrintDialogExtension.h"
#include "platform/files/Bundle.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

// The panel that the Print dialog drives: gathers what the controller needs, carries choices
// between host and model, and passes everything else on.
class MainPDE final : public PDEPanel {
 public:
  // Null without a callback. The callback is borrowed for the panel's life.
  static std::unique_ptr<MainPDE> initWithCallback(PDEPlugInCallback* callback);
  ~MainPDE() override;
  MainPDE(const MainPDE&) = delete;
  MainPDE& operator=(const MainPDE&) = delete;

  std::string panelKind() override;
  std::string panelName() override;
  std::shared_ptr<View> panelView() override;
  void willShow() override;
  bool shouldHide() override;
  bool saveValuesAndReturnError(std::string* error) override;
  bool restoreValuesAndReturnError(std::string* error) override;
  std::vector<std::string> supportedPPDOptionKeys() override;
  void PPDOptionKeyValueDidChange(const OptString& key, const OptString& ppdChoice) override;
  std::map<std::string, OptString> summaryInfo() override;
  bool shouldShowHelp() override;

 private:
  explicit MainPDE(PDEPlugInCallback* callback);

  void changePPDOptionKeyValue();
  void registerObserver();
  void panelViewIsResized();

  // How a host without ppdFile was served; no such host is left.
  void ppdDOnTiger() {}
  void setPrintSettingsOnTiger() {}
  void setprintSettingsToTicket() {}

  PDEPlugInCallback* mPDEPluginCallbackObject;
  Bundle mPDEBundle;
  ppd_file_t* mPPD = nullptr;
  OptString mPDEName;
  std::unique_ptr<TavPDEController> mPDEController;
  StringEncoding mEncoding = 0;
  std::shared_ptr<View> view;
};

}  // namespace tavrin
