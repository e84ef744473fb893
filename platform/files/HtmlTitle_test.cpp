#include "platform/files/HtmlTitle.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(HtmlTitle, IsTheTitleOfThePage) {
  EXPECT_EQ(htmlTitle("<html><head><title>Tavrin 420 Help</title></head></html>"),
            "Tavrin 420 Help");
  EXPECT_EQ(htmlTitle("<TITLE lang='en'>\n  Tavrin\t420\n Help </TITLE>"), "Tavrin 420 Help");
  EXPECT_EQ(htmlTitle("<title>first</title><title>second</title>"), "first");
}

TEST(HtmlTitle, IsTheDeclaredBookTitleWhereThereIsOne) {
  const std::string title = "<title>page</title>";
  for (const char* meta : {"<meta name=\"AppleTitle\" content=\"Book Help\">",
                           "<META CONTENT='Book Help' NAME='appletitle'/>",
                           "<meta  charset=utf-8 name = AppleTitle content= \"Book Help\" >"}) {
    EXPECT_EQ(htmlTitle(title + meta), "Book Help") << meta;
    EXPECT_EQ(htmlTitle(meta + title), "Book Help") << meta;
  }
  EXPECT_EQ(htmlTitle("<meta name=author content=X>" + title), "page");
  EXPECT_EQ(htmlTitle("<meta name=AppleTitle>" + title), "page");
  EXPECT_EQ(htmlTitle("<meta x-name=AppleTitle content=X>" + title), "page");
}

TEST(HtmlTitle, DecodesTheCharactersThatMarkupTakes) {
  EXPECT_EQ(htmlTitle("<title>&lt;Q&amp;A&gt; &quot;&amp;lt;&quot; &copy; &</title>"),
            "<Q&A> \"&lt;\" &copy; &");
  EXPECT_EQ(htmlTitle("<meta name=AppleTitle content='R&amp;D'>"), "R&D");
}

TEST(HtmlTitle, IsNotLookedForInComments) {
  EXPECT_EQ(htmlTitle("<!-- <title>old</title> --><title>new</title>"), "new");
  EXPECT_FALSE(htmlTitle("<!-- <title>old</title>"));
}

TEST(HtmlTitle, IsAbsentIfNoneIsDeclared) {
  for (const char* html : {"", "text", "<p>text</p>", "<title></title>", "<title> \n </title>",
                           "<title>\xFF\xFE</title>", "<titles>x</titles>", "title>x</title>"}) {
    EXPECT_FALSE(htmlTitle(html)) << html;
  }
}

TEST(HtmlTitle, CutAnywhereIsHarmless) {
  const std::string whole =
      "<!-- c --><meta name=\"AppleTitle\" content='Q&amp;A'><title>t</title>";
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const OptString title = htmlTitle(whole.substr(0, length));
    EXPECT_LE(title.value_or("").size(), 7U) << length;
  }
  EXPECT_EQ(htmlTitle("<title>no end"), "no end");
}

}  // namespace
}  // namespace tavrin
