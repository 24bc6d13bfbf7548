#include "tools/system/Text.h"

#include <gtest/gtest.h>

using namespace LagomareTools;

TEST(TextTest, PlainTextIsUtf8WithPlainBlanks) {
  EXPECT_EQ(plainText("Açude\xC2\xA0Velho\r\x1B\xC2\x9B"), "Açude Velho   ");
  EXPECT_EQ(plainText("\xE7\xC0\xAF\xED\xA0\x80|\xE0\x80\xAF"),
            "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD|\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(plainText("\xF4\x8F\xBF\xBF|\xF4\x90\x80\x80|\xE2\x82"),
            "\U0010FFFF|\uFFFD\uFFFD\uFFFD\uFFFD|\uFFFD\uFFFD");
}

TEST(TextTest, OneLineIsHarmlessOnATerminal) {
  EXPECT_EQ(oneLine("a\nb\tc\x1B[2J\xC2\x9B\xE2\x80\xA8\xFFé"), "a\\nb\\x09c\\x1B[2J\\xC2\\x9B\\xE2\\x80\\xA8\\xFFé");
}
