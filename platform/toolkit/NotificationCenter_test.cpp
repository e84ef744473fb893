#include "platform/toolkit/NotificationCenter.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

// Observers are known by one letter each, and the log shows who was told, in order.
class NotificationCenterTest : public testing::Test {
 protected:
  NotificationCenter::Handler logs(char letter) {
    return [this, letter](const void*) { log += letter; };
  }

  NotificationCenter center;
  std::string log;
  int a = 0;  // owners
  int b = 0;
  int c = 0;
};

TEST_F(NotificationCenterTest, TellsObserversOfTheNameInTheirOrder) {
  center.addObserver(&b, "change", logs('b'));
  center.addObserver(&a, "change", logs('a'));
  center.addObserver(&c, "other", logs('c'));
  center.post("change", nullptr);
  EXPECT_EQ(log, "ba");
  center.post("nobody asked", nullptr);
  EXPECT_EQ(log, "ba");
}

TEST_F(NotificationCenterTest, PassesThePostersObjectOn) {
  const void* seen = nullptr;
  center.addObserver(&a, "change", [&seen](const void* object) { seen = object; });
  center.post("change", &c);
  EXPECT_EQ(seen, &c);
}

TEST_F(NotificationCenterTest, ForgetsEveryObserverOfAnOwner) {
  center.addObserver(&a, "change", logs('a'));
  center.addObserver(&b, "change", logs('b'));
  center.addObserver(&a, "other", logs('A'));
  center.removeObserver(&a);
  center.removeObserver(&c);
  center.post("change", nullptr);
  center.post("other", nullptr);
  EXPECT_EQ(log, "b");
}

TEST_F(NotificationCenterTest, AnOwnerMayBeAddedTwice) {
  center.addObserver(&a, "change", logs('a'));
  center.addObserver(&a, "change", logs('a'));
  center.post("change", nullptr);
  EXPECT_EQ(log, "aa");
}

TEST_F(NotificationCenterTest, AnObserverMayRemoveItselfWhileItIsTold) {
  center.addObserver(&a, "change", [this, note = std::string("still here;")](const void*) {
    center.removeObserver(&a);
    log += note;  // what the handler holds must outlive the removal
  });
  center.addObserver(&b, "change", logs('b'));
  center.post("change", nullptr);
  center.post("change", nullptr);
  EXPECT_EQ(log, "still here;bb");
}

TEST_F(NotificationCenterTest, OneRemovedMeanwhileIsNotTold) {
  center.addObserver(&a, "change", [this](const void*) {
    log += 'a';
    center.removeObserver(&b);
  });
  center.addObserver(&b, "change", logs('b'));
  center.addObserver(&c, "change", logs('c'));
  center.post("change", nullptr);
  EXPECT_EQ(log, "ac");
}

TEST_F(NotificationCenterTest, OneAddedMeanwhileIsToldFromTheNextTimeOn) {
  center.addObserver(&a, "change", [this](const void*) {
    log += 'a';
    if (log == "a") center.addObserver(&b, "change", logs('b'));
  });
  center.post("change", nullptr);
  EXPECT_EQ(log, "a");
  center.post("change", nullptr);
  EXPECT_EQ(log, "aab");
}

TEST_F(NotificationCenterTest, OneRemovedAndAddedAgainMeanwhileCountsAsNew) {
  center.addObserver(&a, "change", [this](const void*) {
    center.removeObserver(&b);
    center.addObserver(&b, "change", logs('B'));
  });
  center.addObserver(&b, "change", logs('b'));
  center.post("change", nullptr);
  EXPECT_EQ(log, "");
  center.removeObserver(&a);
  center.post("change", nullptr);
  EXPECT_EQ(log, "B");
}

TEST_F(NotificationCenterTest, APostWithinAPostIsDeliveredAtOnce) {
  center.addObserver(&a, "outer", [this](const void*) {
    log += '(';
    center.post("inner", nullptr);
    log += ')';
  });
  center.addObserver(&b, "outer", logs('b'));
  center.addObserver(&c, "inner", logs('c'));
  center.post("outer", nullptr);
  EXPECT_EQ(log, "(c)b");
}

TEST_F(NotificationCenterTest, RemovalInAnInnerPostHoldsInTheOuterOne) {
  center.addObserver(&a, "outer", [this](const void*) { center.post("inner", nullptr); });
  center.addObserver(&b, "outer", logs('b'));
  center.addObserver(&c, "inner", [this](const void*) {
    center.removeObserver(&a);
    center.removeObserver(&b);
    center.removeObserver(&c);
  });
  center.post("outer", nullptr);
  center.post("outer", nullptr);
  EXPECT_EQ(log, "");
}

TEST_F(NotificationCenterTest, OneAddedInTheOuterPostIsToldByAnInnerOne) {
  center.addObserver(&a, "change", [this](const void*) {
    log += 'a';
    if (log.size() > 1) return;
    center.addObserver(&b, "change", logs('b'));
    center.post("change", nullptr);
  });
  center.post("change", nullptr);
  EXPECT_EQ(log, "aab");
}

TEST_F(NotificationCenterTest, AHandlerThatThrowsLeavesTheCentreInOrder) {
  center.addObserver(&a, "change", [](const void*) { throw 1; });
  EXPECT_THROW(center.post("change", nullptr), int);
  const auto held = std::make_shared<int>(0);
  center.addObserver(&b, "other", [held](const void*) {});
  center.removeObserver(&b);
  EXPECT_EQ(held.use_count(), 1) << "a removed observer is let go at once, no post being under way";
}

TEST_F(NotificationCenterTest, TheProcessHasOneCentre) {
  EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

}  // namespace
}  // namespace tavrin
