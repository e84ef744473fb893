#include "host/notes/Note.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Note, IsThereOnlyWithSomethingToSay) {
  Note note(nullptr);
  EXPECT_TRUE(note.isHidden());
  note.say("<b>Look</b>");
  EXPECT_FALSE(note.isHidden());
  EXPECT_EQ(note.text(), "<b>Look</b>");
  note.clear();
  EXPECT_TRUE(note.isHidden());
}

}  // namespace
}  // namespace tavrin
