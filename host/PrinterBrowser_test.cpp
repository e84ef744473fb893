#include "host/PrinterBrowser.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <sys/stat.h>
#include <thread>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include "host/JobRunner.h"
#include "host/testing/PrivateCupsd.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

class BackgroundTest : public testing::Test {
 protected:
  // Handles events until the condition holds; false when it does not come true.
  static bool eventually(const std::function<bool()>& condition) {
    QEventLoop loop;
    QTimer poll, limit;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
      if (condition()) loop.quit();
    });
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    poll.start(5);
    limit.start(20000);
    loop.exec();
    return condition();
  }

  int argc = 1;
  char name[5] = "test";
  char* argv[2] = {name, nullptr};
  QCoreApplication application{argc, argv};
};

TEST_F(BackgroundTest, AnswersOnItsOwnThread) {
  Background background;
  const auto* here = QThread::currentThread();
  const QThread* answered = nullptr;
  background.run([&](const CancelFlag&, const Background::Send& send) {
    EXPECT_NE(QThread::currentThread(), here);
    send([&] { answered = QThread::currentThread(); });
  });
  EXPECT_TRUE(eventually([&] { return answered != nullptr; }));
  EXPECT_EQ(answered, here);
}

// Work that is stuck until somebody lets it go.
struct Stuck {
  std::mutex mutex;
  std::condition_variable changed;
  bool started = false, released = false, finished = false, sawCancel = false;

  void set(bool Stuck::*flag) {
    const std::lock_guard lock(mutex);
    this->*flag = true;
    changed.notify_all();
  }
  void wait(bool Stuck::*flag) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return this->*flag; });
  }
};

TEST_F(BackgroundTest, DoesNotWaitForWorkThatIsStuck) {
  const auto stuck = std::make_shared<Stuck>();
  bool answered = false;
  {
    Background background;
    background.run([stuck, &answered](const CancelFlag& cancel, const Background::Send& send) {
      stuck->set(&Stuck::started);
      stuck->wait(&Stuck::released);
      stuck->sawCancel = cancel;
      send([&answered] { answered = true; });
      stuck->set(&Stuck::finished);
    });
    stuck->wait(&Stuck::started);
  }
  stuck->set(&Stuck::released);
  stuck->wait(&Stuck::finished);
  QCoreApplication::processEvents();
  EXPECT_TRUE(stuck->sawCancel);
  EXPECT_FALSE(answered);
}

TEST_F(BackgroundTest, CancelsTheWorkSoFarOnly) {
  Background background;
  int cancelled = 0, finished = 0;
  background.run([&](const CancelFlag& cancel, const Background::Send& send) {
    while (!cancel) std::this_thread::yield();
    send([&] { ++cancelled; });
  });
  background.cancel();
  background.run([&](const CancelFlag& cancel, const Background::Send& send) {
    if (!cancel) send([&] { ++finished; });
  });
  EXPECT_TRUE(eventually([&] { return cancelled == 1 && finished == 1; }));
}

class PrinterBrowserTest : public BackgroundTest {
 protected:
  PrinterBrowserTest() {
    cups.addQueue(
        "tav", place.write("a.ppd", ppdText({paperTypeOption()}, {"*cupsFilter2: \"application/pdf "
                                                                  "application/pdf 0 -\""})));
  }

  test::TemporaryFolder place;
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
                                               "tav is Idle"}));
}

TEST_F(PrinterBrowserTest, AJobRunsBesideTheWindow) {
  JobRunner runner;
  JobRequest request;
  request.printer = "tav";
  request.document = place.write("card.pdf", "%PDF-1.4 a card");
  std::uint64_t sent = 0;
  int jobId = 0;
  QObject::connect(&runner, &JobRunner::progressed, &runner,
                   [&](const Progress& progress) { sent = progress.done; });
  QObject::connect(&runner, &JobRunner::submitted, &runner,
                   [&](const Submission& submission) { jobId = submission.jobId; });
  runner.submit(request, {{"MediaType", "IronOn"}});
  ASSERT_TRUE(eventually([&] { return jobId != 0; }));
  EXPECT_EQ(sent, 15u);
  EXPECT_TRUE(cups.waitForJob(jobId).has("MediaType=IronOn"));
}

TEST_F(BackgroundTest, ACancelledJobSaysSo) {
  test::TemporaryFolder place;
  const auto fifo = place.path() / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  JobRunner runner;
  JobRequest request;
  request.document = fifo;  // nobody will ever fill it
  bool cancelled = false;
  QObject::connect(&runner, &JobRunner::cancelled, &runner, [&] { cancelled = true; });
  runner.writeFolder(place.path(), request, {});
  runner.cancel();
  EXPECT_TRUE(eventually([&] { return cancelled; }));
}

}  // namespace
}  // namespace tavrin
