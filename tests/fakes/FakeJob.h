#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/contract/PrintDialogExtension.h"
#include "platform/contract/PrintJob.h"
#include "platform/toolkit/HelpViewer.h"

// What surrounds a panel besides the toolkit: a job, a host and a help viewer that remember.

namespace tavrin {

class FakePrintSettings final : public PMPrintSettings {
 public:
  OptString value(const std::string& key) const override {
    return key == kPMLayoutColumns ? columns : std::nullopt;
  }

  OptString columns;
};

class FakePageFormat final : public PMPageFormat, public PMPaper {
 public:
  const PMPaper* paper() const override { return hasPaper ? this : nullptr; }
  OptString ppdPaperName() const override { return name; }

  bool hasPaper = true;
  OptString name = "A4";
};

class FakeHost final : public PDEPlugInCallback {
 public:
  ppd_file_s* ppdFile() override { return ppd; }
  const PMPrintSettings* printSettings() override {
    asked.emplace_back("printSettings");
    return &settings;
  }
  const PMPageFormat* pageFormat() override {
    asked.emplace_back("pageFormat");
    return &format;
  }
  bool willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) override {
    handedOver.emplace_back(key, ppdChoice);
    return true;
  }
  void panelViewDidResize() override { ++resizes; }

  ppd_file_s* ppd = nullptr;
  FakePrintSettings settings;
  FakePageFormat format;
  std::vector<std::string> asked;  // what was asked for, in order
  std::vector<std::pair<std::string, OptString>> handedOver;
  int resizes = 0;
};

// Installs itself for its life.
class FakeHelpViewer final : public HelpViewer {
 public:
  FakeHelpViewer() { install(this); }
  ~FakeHelpViewer() override { install(nullptr); }

  void registerHelpBook(const std::string& path) override { registered.push_back(path); }
  void gotoPage(const std::string& book, const OptString& page, const OptString&) override {
    books.push_back(book);
    pages.push_back(page);
  }

  std::vector<std::string> registered;
  std::vector<std::string> books;
  std::vector<OptString> pages;
};

}  // namespace tavrin
