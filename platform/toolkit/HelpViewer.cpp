#include "platform/toolkit/HelpViewer.h"

namespace tavrin {
namespace {

class NullHelpViewer final : public HelpViewer {
 public:
  void registerHelpBook(const std::string&) override {}
  void gotoPage(const std::string&, const OptString&, const OptString&) override {}
};

HelpViewer*& installedViewer() {
  static HelpViewer* viewer = nullptr;
  return viewer;
}

}  // namespace

HelpViewer& HelpViewer::current() {
  static NullHelpViewer none;
  return installedViewer() != nullptr ? *installedViewer() : none;
}

void HelpViewer::install(HelpViewer* viewer) { installedViewer() = viewer; }

}  // namespace tavrin
