#include "access/Numbers.h"

#include "access/FieldError.h"
#include "access/Fields.h"

#include <cstdint>
#include <cstdio>
#include <exception>
#include <gmock/gmock.h>
#include <optional>
#include <stdexcept>
#include <string>

#include <array>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <random>
#include <sstream>

using namespace Lagomare;
using namespace testing;

namespace {

/// A number to the bit, or the kind and text of the error.
template <typename Convert>
std::string outcomeOf(Convert convert, const std::string& text) {
  try {
    std::array<char, 40> bits{};
    std::snprintf(bits.data(), bits.size(), "%a", static_cast<double>(convert(text)));
    return bits.data();
  } catch (const std::invalid_argument& error) {
    return std::string("invalid ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("out of range ") + error.what();
  }
}

/// std::stoul as it is where its numbers have 32 bits.
std::uint32_t standardUnsigned(const std::string& text) {
  const std::uint64_t number = std::stoul(text);
  const bool isNegative = text.find('-') < text.find_first_of("0123456789");
  if ((isNegative ? 0 - number : number) > UINT32_MAX)
    throw std::out_of_range("stoul");
  return static_cast<std::uint32_t>(number);
}

/// std::stod, which C libraries disagree about where a subnormal number is exact.
double standardDouble(const std::string& text) {
  const double number = std::stod(text);
  return number != 0.0 && std::fabs(number) < DBL_MIN ? throw std::out_of_range("stod") : number;
}

/// How many characters a standard conversion takes; 0 where it throws, or where its number does not fit here.
template <typename Convert>
std::size_t standardLength(Convert convert, bool isRead, const std::string& text) {
  std::size_t length = 0;
  if (isRead)
    static_cast<void>(convert(text, &length));
  return length;
}

void expectStandard(const std::string& text) {
  EXPECT_EQ(outcomeOf(toUnsigned, text), outcomeOf(standardUnsigned, text)) << '"' << text << '"';
  EXPECT_EQ(outcomeOf(toDouble, text), outcomeOf(standardDouble, text)) << '"' << text << '"';
  const auto found = findDouble(text);
  const std::size_t length = lengthOfUnsigned(text);
  const auto stod = [](const std::string& number, std::size_t* end) { return std::stod(number, end); };
  const auto stoul = [](const std::string& number, std::size_t* end) { return std::stoul(number, end); };
  EXPECT_EQ(found ? found->length : 0, standardLength(stod, found.has_value(), text)) << '"' << text << '"';
  EXPECT_EQ(length, standardLength(stoul, length != 0, text)) << '"' << text << '"';
}

/// Mostly something like a number.
std::string randomText(std::mt19937& engine) {
  static const std::string letters = "0123456789012345678901234567890123456789....+-+-eEeExXpP \t,;aAfFinINty()_";
  static const std::array<const char*, 5> formats{"%.17g", "%.4f", "%.0f", "%a", "%.25e"};
  std::array<char, 400> text{};
  if (engine() % 2 == 0) {
    const std::uint64_t bits = std::uint64_t{engine()} << 32U | engine();
    double number = static_cast<double>(engine()) / 4096.0;
    if (engine() % 4 == 0)
      std::memcpy(&number, &bits, sizeof number);
    std::snprintf(text.data(), text.size(), formats[engine() % formats.size()], number);
  }
  std::string mixed = text.data();
  for (auto length = engine() % (mixed.empty() ? 12 : 3); length > 0; --length)
    mixed.insert(engine() % (mixed.size() + 1), 1, letters[engine() % letters.size()]);
  return mixed;
}

} // namespace

TEST(NumbersTest, ConvertAwkwardTextsAsTheStandardDoes) {
  const std::string nines(400, '9');
  const std::string zeros(400, '0');
  std::istringstream texts(
      "| |+|-|--1|+-1|-+1|++1|- 1|0|-0|007|1e5|1e+05|1E-5|1.5e|1e+|1e-x|.5|5.|.|-.|.e1|-.5e-3x|0x10|0x|0x.|"
      "0x.8p1|0xg|-0X1P-3|0x.g|0x1p|0x1.8p+|inf|-INFINITY|infin|in|nan|-nan|NAN(12)|nan(|nanx|1,5|1.234,5|"
      "1 2|\t\n\v\f\r 7|\u00A07|15/01/1990|7..5|7-5|1_000|e5|x10|4294967295|4294967296|-1|-4294967295|"
      "-4294967296|18446744073709551616|1e308|1e309|-1e309|1.7976931348623157e308|1.7976931348623159e308|"
      "0x1p1024|0x1.fffffffffffff8p1023|2.2250738585072014e-308|2.2250738585072009e-308|-5e-324|1e-400|"
      "0x1p-1074|0e999999999|1e999999999999999999999|1e-999999999999999999999|9007199254740993|"
      "0.1000000000000000055511151231257827|" +
      nines + "|0." + zeros + "1|." + nines + '|' + zeros + "7|" + nines + "e-400|0." + zeros + "1e400");
  for (std::string text; std::getline(texts, text, '|');)
    expectStandard(text);
  expectStandard(std::string("7\0005", 3));
}

TEST(NumbersTest, ConvertRandomTextsAsTheStandardDoes) {
  std::mt19937 engine(20130501);
  for (int i = 0; i < 100000 && !HasFailure(); ++i) {
    const std::string text = randomText(engine);
    // Standard libraries disagree about two signs in a binary exponent.
    if (text.find("p+-") == std::string::npos)
      expectStandard(text);
  }
}

TEST(NumbersTest, TruncateTowardZeroWithinTheInteger) {
  const auto truncated = [](auto convert, const std::string& text) {
    const std::string outcome = outcomeOf([convert](const std::string& number) { return convert(number); }, text);
    return outcome == "out of range stod" ? "out" : std::to_string(static_cast<long long>(std::stod(outcome)));
  };
  std::istringstream table("2.9 2 2  -0.9 0 0  -1.5 -1 out  -1 -1 out  1e10 out out  nan out out  -inf out out "
                           "2147483647.9 2147483647 2147483647  2147483648 out 2147483648  4294967295.9 out 4294967295 "
                           "-2147483648.9 -2147483648 out  -2147483649 out out  4294967296 out out");
  for (std::string text, asInt, asUnsigned; table >> text >> asInt >> asUnsigned;) {
    EXPECT_EQ(truncated(toTruncatedInt, text), asInt) << text;
    EXPECT_EQ(truncated(toTruncatedUnsigned, text), asUnsigned) << text;
  }
}

TEST(NumbersTest, ErrorsTellTextRowAndColumn) {
  const Row row{"7", "east", "4294967296"};
  const auto errorOf = [&row](auto read, std::size_t column) {
    try {
      return "read as " + PrintToString(read(row, column));
    } catch (const FieldError& error) {
      return dynamic_cast<const std::exception&>(error).what() + (": " + error.text().value_or("nothing")) +
             " in row " + std::to_string(error.rowId().value()) + ", column " + std::to_string(error.column().value());
    }
  };
  EXPECT_EQ(errorOf(numberAt, 1), "stod: east in row 7, column 1");
  EXPECT_EQ(errorOf(unsignedAt, 2), "stoul: 4294967296 in row 7, column 2");
  EXPECT_EQ(errorOf(truncatedIntAt, 2), "stod: 4294967296 in row 7, column 2");
  EXPECT_EQ(errorOf(textAt, 3), "a row of the id 7 has no column 3: nothing in row 7, column 3");
  EXPECT_THROW(static_cast<void>(textAt(row, 3)), std::out_of_range);
  EXPECT_THAT([] { static_cast<void>(toDouble("east")); },
              Throws<InvalidField>(Property(&FieldError::rowId, Eq(std::nullopt))));
}
