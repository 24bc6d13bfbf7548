#include "tools/query/QueryError.h"
#include "tools/query/access/AccessNumber.h"
#include "tools/query/access/AccessText.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace LagomareQuery {
namespace {

std::string textOf(const std::string& stored) {
  std::string text;
  appendUtf16({reinterpret_cast<const std::uint8_t*>(stored.data()), stored.size()}, text);
  return text;
}

TEST(AccessText, CompressedTextChangesBetweenOneByteAndTwo) {
  EXPECT_EQ(textOf(std::string("\xFF\xFE\x41\0\x13\x20\0\x42", 8)), "A–B");
  EXPECT_EQ(textOf(std::string("\xFF\xFE\x41\0\x13\x20\x14", 7)), "A–"); // cut within a character
}

TEST(AccessText, BytesThatCodePage1252LeavesUndefinedAreReplaced) {
  const std::uint8_t stored[] = {0x41, 0x80, 0x81, 0x9F, 0xE7};
  std::string text;
  appendWindows1252({stored, sizeof stored}, text);
  EXPECT_EQ(text, "A€\uFFFDŸç");
}

TEST(AccessNumber, NoDateIsInTheYear10000) {
  EXPECT_EQ(isoOfDateTime(2958465.999988), "9999-12-31 23:59:59");
  EXPECT_THROW(static_cast<void>(isoOfDateTime(2958465.9999999)), QueryError);
}

} // namespace
} // namespace LagomareQuery
