#include "host/server/IppRequest.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A message is put together from these. Version 2.0, successful, request 1, a group of attributes.
const std::string kStart("\x02\x00\x00\x00\x00\x00\x00\x01\x04", 9);
const std::string kName("\x42\x00\x0Cprinter-name\x00\x05photo", 22);
const std::string kCollection("\x34\x00\x01x\x00\x00", 6);
const std::string kInner("\x4A\x00\x00\x00\x01x\x34\x00\x00\x00\x00", 11);
const std::string kEndOfCollection("\x37\x00\x00\x00\x00", 5);
const std::string kEnd("\x03");

std::string times(int count, const std::string& part) {
  std::string all;
  for (int i = 0; i < count; ++i) all += part;
  return all;
}

std::string collections(int depth) {
  return kCollection + times(depth - 1, kInner) + times(depth, kEndOfCollection);
}

TEST(ReadMessage, GivesWhatTheMessageSays) {
  const IppPtr message = readMessage(kStart + kName + collections(3) + kEnd);
  ASSERT_TRUE(message);
  EXPECT_EQ(textIn(*message, "printer-name"), "photo");
}

TEST(ReadMessage, TakesNoCollectionsWithoutABottom) {
  EXPECT_TRUE(readMessage(kStart + collections(16) + kEnd));
  EXPECT_FALSE(readMessage(kStart + collections(17) + kEnd));
  EXPECT_FALSE(readMessage(kStart + times(20'000, kEndOfCollection) + collections(20'000) + kEnd))
      << "nor after ends of collections that never began";
  EXPECT_FALSE(readMessage(kStart + kEndOfCollection + kEnd));
}

TEST(ReadMessage, TakesNoBrokenMessage) {
  EXPECT_FALSE(readMessage(""));
  EXPECT_FALSE(readMessage(kStart)) << "without an end";
  EXPECT_FALSE(readMessage(kStart.substr(0, 4)));
  EXPECT_FALSE(readMessage(kStart + kName.substr(0, 10)));
  EXPECT_FALSE(readMessage(kStart + std::string("\x42\xFF\xFFx", 4) + kEnd)) << "a name too long";
  EXPECT_FALSE(readMessage(kStart + std::string("\x7F\x00\x01x\x00\x00", 6) + kEnd));
}

}  // namespace
}  // namespace tavrin
