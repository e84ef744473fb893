#include "host/panels/PrinterSession.h"

#include "host/panels/TrustedBundles.h"
#include "host/printer/MarkedOptions.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

PrinterSession::PrinterSession(SharedPPD ppd)
    : file(std::move(ppd)), ppdMarks(*file), host(file.get()) {
  host.onWillChange = [this](const std::string&, const OptString&) {
    if (!isTakingChoices) ppdMarks.marksWereReplaced();
  };
  host.onResize = [this] { emit panelResized(); };
  connect(&ppdMarks, &PPDMarks::refreshed, this, &PrinterSession::followPaper);
  connect(&ppdMarks, &PPDMarks::changed, this, &PrinterSession::tellPanels);
}

PrinterSession::~PrinterSession() = default;

std::string PrinterSession::loadPanels() {
  const OptString extension = dialogExtension(file.get());
  if (!extension) return {};
  const Result<std::filesystem::path> folder = findPlugIn(*extension);
  if (!folder) return folder.reason();
  Result<LoadedPlugIn> plugIn = loadPlugIn(*folder);
  return plugIn ? addPanels(std::move(*plugIn)) : plugIn.reason();
}

std::string PrinterSession::addPanels(LoadedPlugIn plugIn) {
  loaded = std::move(plugIn);
  auto offered = loaded.principal->PDEPanelsForType(kPrintDialogPanelType, &host);
  if (!offered)
    return "The printer's plug-in has no panel for this dialog. The printer's usual settings "
           "are used.";
  ownPanels = std::move(*offered);
  return restorePanels();
}

std::set<std::string> PrinterSession::claimedKeywords() const {
  std::set<std::string> keywords;
  for (const auto& panel : ownPanels)
    for (const std::string& key : panel->supportedPPDOptionKeys()) keywords.insert(key);
  return keywords;
}

std::vector<std::string> PrinterSession::markAnew(const OptionList& options,
                                                  const std::vector<std::string>& unmarked) {
  std::vector<std::string> problems = markOptions(*file, options);
  for (const std::string& keyword : unmarked)
    if (ppd_option_t* option = ppdFindOption(file.get(), keyword.c_str())) unmark(*file, *option);
  ppdMarks.marksWereReplaced();
  if (std::string problem = restorePanels(); !problem.empty()) problems.push_back(problem);
  return problems;
}

std::string PrinterSession::restorePanels() {
  for (const auto& panel : ownPanels)
    if (std::string error; !panel->restoreValuesAndReturnError(&error))
      return error.empty() ? "The printer's panel could not take its settings." : error;
  return {};
}

void PrinterSession::setPagesPerSheet(int pages) {
  host.printSettings()->setValue(kPMLayoutColumns, std::to_string(layoutColumns(pages)));
}

std::string PrinterSession::takePanelChoices() {
  isTakingChoices = true;
  const std::string problem = savePanels();
  isTakingChoices = false;
  ppdMarks.marksWereReplaced();
  return problem;
}

std::string PrinterSession::savePanels() {
  for (const auto& panel : ownPanels)
    if (std::string error; !panel->saveValuesAndReturnError(&error))
      return error.empty() ? "The printer's panel could not hand over its settings." : error;
  return {};
}

void PrinterSession::followPaper() { host.pageFormat()->setPaper(ppdMarks.choice(kPageSizeKey)); }

void PrinterSession::tellPanels(const std::string& keyword, const OptString& choice) {
  for (const auto& panel : ownPanels) panel->PPDOptionKeyValueDidChange(keyword, choice);
}

}  // namespace tavrin
