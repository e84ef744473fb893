#include "host/server/PrinterBrowser.h"

#include <algorithm>

#include "tests/fixtures/EventLoopTest.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

class PrinterBrowserTest : public EventLoopTest {
 protected:
  PrinterBrowserTest() { cups.addPlainQueue("tav"); }

  PrivateCupsd cups;
};

TEST_F(PrinterBrowserTest, AnswersEveryRequest) {
  PrinterBrowser browser;
  std::vector<std::string> answers;
  QObject::connect(&browser, &PrinterBrowser::printersFound, &browser, [&](const auto& printers) {
    for (const Printer& printer : printers) answers.push_back("found " + printer.name);
  });
  QObject::connect(&browser, &PrinterBrowser::ppdReady, &browser,
                   [&](const std::string& queue, const SharedPPD& ppd) {
                     EXPECT_NE(ppdFindOption(ppd.get(), "MediaType"), nullptr);
                     answers.push_back("ppd of " + queue);
                   });
  QObject::connect(&browser, &PrinterBrowser::ppdFailed, &browser,
                   [&](const std::string& queue, const QString& reason) {
                     EXPECT_FALSE(reason.isEmpty());
                     answers.push_back("no ppd of " + queue);
                   });
  QObject::connect(&browser, &PrinterBrowser::stateChanged, &browser,
                   [&](const std::string& queue, const PrinterState& state) {
                     answers.push_back(queue + " is " + stateText(state));
                   });
  browser.findPrinters();
  browser.fetchPPD("tav");
  browser.fetchPPD("nowhere");
  browser.readState("tav");
  EXPECT_TRUE(eventually([&] { return answers.size() == 4; }));
  std::sort(answers.begin(), answers.end());
  EXPECT_EQ(answers, (std::vector<std::string>{"found tav", "no ppd of nowhere", "ppd of tav",
                                               "tav is Ready"}));
}

}  // namespace
}  // namespace tavrin
