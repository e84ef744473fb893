#include "host/request/LpCommand.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(LpCommand, SaysTheSameAsTheRequest) {
  JobRequest request{"photo", "draft", 2, "Ada's card", "", {}, "my card.pdf"};
  EXPECT_EQ(lpCommand(request, {{"MediaType", "IronOn"}, {"copies", "2"}, {"note", "a b'c"}}),
            "lp -d 'photo/draft' -n 2 -t 'Ada'\\''s card' -o 'MediaType=IronOn' "
            "-o 'note=a\\ b\\'\\''c' -- 'my card.pdf'");
}

TEST(LpCommand, QuotesAValueSoThatItIsReadBackTheSame) {
  const std::string value = "two words 'and' \"quotes\" \\ back";
  const std::string command = lpCommand({}, {{"note", value}});
  std::string argument = command.substr(command.find("-o '") + 4);
  argument.resize(argument.rfind("' -- '-'"));
  for (std::size_t at; (at = argument.find("'\\''")) != std::string::npos;)
    argument.replace(at, 4, "\x01");
  for (char& c : argument)
    if (c == '\x01') c = '\'';
  EXPECT_EQ(optionsFromArgument(argument), (OptionList{{"note", value}}));
}

}  // namespace
}  // namespace tavrin
