#pragma once

#include <string>

#include "platform/toolkit/HelpViewer.h"
#include "replay/session/EventLog.h"

namespace tavrin {

// A help viewer that shows nothing and writes down what it was asked for. Installs itself for its
// life; the log outlives it.
class RecordingHelpViewer final : public HelpViewer {
 public:
  explicit RecordingHelpViewer(EventLog& eventLog) : log(eventLog) { install(this); }
  ~RecordingHelpViewer() override { install(nullptr); }
  RecordingHelpViewer(const RecordingHelpViewer&) = delete;
  RecordingHelpViewer& operator=(const RecordingHelpViewer&) = delete;

  void registerHelpBook(const std::string& path) override { log.helpBookRegistered(path); }
  void gotoPage(const std::string& book, const OptString& page, const OptString&) override {
    log.helpPageShown(book, page);
  }

 private:
  EventLog& log;
};

}  // namespace tavrin
