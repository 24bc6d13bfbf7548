#include "access/Numbers.h"
#include "bench/Benches.h"
#include "bench/Table.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareBench {

using namespace Lagomare;

namespace {

using Texts = std::vector<std::string>;

std::string printed(const char* format, double value) {
  char text[400];
  return std::string(text, static_cast<std::size_t>(std::snprintf(text, sizeof text, format, value)));
}

double randomBits(std::mt19937_64& random) {
  const std::uint64_t bits = random();
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

/// A number of any size in one of the ways to write it, or some letters that numbers are made of.
std::string randomText(std::mt19937_64& random) {
  static constexpr const char* formats[] = {"%.17g", "%.15g", "%.4f", "%.3e", " %+.9g", "%g x", "%a", "%.0f"};
  static constexpr std::string_view letters = "0123456789+-.eExXpP infatyINFATY\t";
  if (random() % 4 != 0)
    return printed(formats[random() % std::size(formats)],
                   random() % 2 == 0 ? randomBits(random) : static_cast<double>(random() % 10000000000U) * 1e-4);
  std::string text;
  for (auto length = random() % 12; length > 0; --length)
    text += letters[random() % letters.size()];
  return text;
}

/// The bits of what the text converts to, or what() of the error.
template <typename Convert>
std::string outcome(const std::string& text, Convert convert) {
  try {
    const double value = convert(text);
    return std::string(reinterpret_cast<const char*>(&value), sizeof value);
  } catch (const std::invalid_argument& error) {
    return std::string("invalid ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("out of range ") + error.what();
  }
}

double plain(const std::string& text) { return std::stod(text); }

/// What a conversion cannot be faster than that leaves the digits to the standard library.
double bare(const std::string& text) {
  double value = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

/// Subnormal numbers are out of range: C libraries disagree about those that are exact.
double plainNormal(const std::string& text) {
  const double value = std::stod(text);
  return std::fpclassify(value) == FP_SUBNORMAL ? throw std::out_of_range("stod") : value;
}

bool isConvertedAlike(const std::string& text) { return outcome(text, plainNormal) == outcome(text, toDouble); }

/// How many of so many texts are converted otherwise than by std::stod; the first ones are told on standard error.
unsigned countDifferences(unsigned texts) {
  constexpr unsigned mostTold = 3;
  std::mt19937_64 random(1);
  unsigned differences = 0;
  for (unsigned done = 0; done < texts; ++done)
    if (const auto text = randomText(random); !isConvertedAlike(text) && ++differences <= mostTold)
      std::cerr << "converted otherwise than by std::stod: \"" << text << "\"\n";
  return differences;
}

template <typename Convert>
std::function<void()> convertAll(const Texts& texts, Convert convert) {
  return [texts, convert] {
    for (const auto& text : texts)
      benchmark::DoNotOptimize(convert(text));
  };
}

Work& addConversion(Table& table, const std::string& name, const Texts& texts) {
  Work& work = table.add(name, nanoseconds);
  const auto items = static_cast<double>(texts.size());
  work.setCheck([texts] {
    if (!std::all_of(texts.begin(), texts.end(), isConvertedAlike))
      throw std::runtime_error("the conversions differ");
  });
  work.addLoop("plain", items, convertAll(texts, plain));
  work.addLoop("ours", items, convertAll(texts, toDouble));
  work.addLoop("floor", items, convertAll(texts, bare));
  return work;
}

} // namespace

void addNumberBenches(Table& table) {
  constexpr unsigned count = 10000;
  constexpr unsigned compared = 1000000;
  std::mt19937_64 random(1);
  Texts decimals;
  Texts digits;
  for (unsigned text = 0; text < count; ++text) {
    decimals.push_back(printed("%.4f", static_cast<double>(random() % 100000000U) * 1e-4));
    digits.push_back(printed("%.17g", std::ldexp(static_cast<double>(random()), -50)));
  }
  addConversion(table, "text → double, 4 decimals", decimals).aimAtLeast("plain", "ours", 6.0);
  addConversion(table, "text → double, 17 digits", digits).aimAtLeast("plain", "ours", 4.0);
  Work& work = table.add("of 1,000,000 random texts, those converted otherwise than by `std::stod`", plainCount);
  work.add("ours", 1, [differences = std::optional<unsigned>()]() mutable {
    if (!differences) // the same in every round
      differences = countDifferences(compared);
    return *differences;
  });
  work.aimAtMost("ours", "", 0);
}

} // namespace LagomareBench
