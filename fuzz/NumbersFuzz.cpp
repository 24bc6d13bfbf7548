// Texts become the numbers that std::stoul and std::stod make of them, or the same errors. Known differences: unsigned
// numbers have 32 bits, subnormal numbers are out of range, what a NaN carries in parentheses does not count, and the
// standard libraries disagree about two signs in a binary exponent.

#include "access/Numbers.h"
#include "fuzz/Finding.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

using namespace Lagomare;
using namespace LagomareFuzz;

namespace {

/// std::stoul as it is where its numbers have 32 bits.
std::uint32_t standardUnsigned(const std::string& text) {
  const std::uint64_t number = std::stoul(text);
  const bool isNegative = text.find('-') < text.find_first_of("0123456789");
  if ((isNegative ? 0 - number : number) > std::numeric_limits<std::uint32_t>::max())
    throw std::out_of_range("stoul");
  return static_cast<std::uint32_t>(number);
}

/// A parenthesis is part of a NaN only.
double standardDouble(const std::string& text) {
  const double number = std::stod(text.substr(0, text.find('(')));
  return std::fpclassify(number) == FP_SUBNORMAL ? throw std::out_of_range("stod") : number;
}

template <typename Integer>
Integer standardTruncated(const std::string& text) {
  const double number = std::trunc(standardDouble(text));
  if (number >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
      number <= static_cast<double>(std::numeric_limits<Integer>::max()))
    return static_cast<Integer>(number);
  throw std::out_of_range("stod");
}

template <typename Ours, typename Standard>
void requireEqual(const std::string& text, Ours ours, Standard standard) {
  const std::string found = outcomeOf([&] { return ours(text); }, exactText);
  const std::string expected = outcomeOf([&] { return standard(text); }, exactText);
  require(found == expected, "\"" + text + "\" gives " + found + ", the standard " + expected);
}

bool hasTwoSignsInExponent(const std::string& text) {
  const auto found = text.find_first_of("pP");
  return found < text.size() - 2 && text.find_first_of("+-", found + 1) == found + 1 &&
         text.find_first_of("+-", found + 2) == found + 2;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (size > 2 && hasTwoSignsInExponent(text))
    return 0;
  requireEqual(text, toUnsigned, standardUnsigned);
  requireEqual(text, toDouble, standardDouble);
  requireEqual(text, toTruncatedInt, standardTruncated<std::int32_t>);
  requireEqual(text, toTruncatedUnsigned, standardTruncated<std::uint32_t>);
  return 0;
}
