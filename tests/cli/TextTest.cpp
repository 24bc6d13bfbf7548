#include "tools/cli/Text.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

using namespace LagomareCli;

TEST(TextTest, NumbersAreShortAndReadBack) {
  const auto text = [](double value) { return std::string(NumberText(value).view()); };
  EXPECT_EQ(text(0.1), "0.1");
  EXPECT_EQ(text(100000), "100000");
  EXPECT_EQ(text(-0.00001), "-0.00001");
  EXPECT_EQ(text(1e15), "1e+15");
  for (const double value : {1.0 / 3, 5e-324, std::numeric_limits<double>::max(), 123456789012345.67, -2e-5 / 3})
    EXPECT_EQ(std::strtod(text(value).c_str(), nullptr), value);
}

TEST(TextTest, PlainTextIsUtf8WithPlainBlanks) {
  EXPECT_EQ(plainText("Açude\xC2\xA0Velho"), "Açude Velho");
  EXPECT_EQ(plainText("\xE7\xC0\xAF\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(plainText("\xF4\x8F\xBF\xBF|\xF4\x90\x80\x80|\xE2\x82"),
            "\U0010FFFF|\uFFFD\uFFFD\uFFFD\uFFFD|\uFFFD\uFFFD");
}

TEST(TextTest, OneLineIsHarmlessOnATerminal) {
  EXPECT_EQ(oneLine("a\nb\tc\x1B[2J\xC2\x9B\xE2\x80\xA8\xFFé"), "a\\nb\\x09c\\x1B[2J\\xC2\\x9B\\xE2\\x80\\xA8\\xFFé");
}
