#include "platform/files/InsideFolder.h"

#include <gtest/gtest.h>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

TEST(InsideFolder, LinksCountForWhatIsBehindThem) {
  const test::TemporaryFolder place;
  const fs::path folder = place.path() / "book";
  const fs::path own = place.write("book/pages/own.html", "x");
  const fs::path other = place.write("book2/other.html", "x");
  fs::create_symlink(other, folder / "pages" / "link.html");
  fs::create_directory_symlink(folder, place.path() / "linked");
  EXPECT_TRUE(isInside(own, folder));
  EXPECT_TRUE(isInside(own, place.path() / "linked"));
  EXPECT_FALSE(isInside(folder / "pages" / "link.html", folder));
  EXPECT_FALSE(isInside(other, folder)) << "a longer name is another folder";
  EXPECT_FALSE(isInside(folder / "missing.html", folder));
  EXPECT_FALSE(isInside(own, place.path() / "missing"));
}

}  // namespace
}  // namespace tavrin
