#include "tools/export/report/PackedNumbers.h"

#include "tools/system/Failure.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fmt/format.h>
#include <zlib.h>

namespace LagomareTools {

namespace {

constexpr int doubles = -1; ///< the scale of a list that is kept as it is
constexpr int largestScale = 9;
constexpr double largestWhole = 4503599627370496.0; // 2^52, so that a difference of two is exact too

double powerOfTen(int scale) {
  double power = 1.0;
  while (scale-- > 0)
    power *= 10.0; // exact up to 10^22
  return power;
}

double wholeOf(double value, double power) { return std::nearbyint(value * power); }

bool isDecimal(double value, double power) {
  const double whole = wholeOf(value, power);
  return std::fabs(whole) < largestWhole && whole / power == value; // never for what is not finite
}

/// The decimal places that all values have at most. A value that fits a scale fits every larger one.
int scaleOf(const std::vector<double>& values) {
  int scale = 0;
  for (const double value : values)
    while (!isDecimal(value, powerOfTen(scale)))
      if (++scale > largestScale)
        return doubles;
  const double power = powerOfTen(scale);
  const auto fits = [power](double value) { return isDecimal(value, power); };
  return std::all_of(values.begin(), values.end(), fits) ? scale : doubles;
}

std::vector<std::uint64_t> bitsOf(const std::vector<double>& values) {
  std::vector<std::uint64_t> bits(values.size());
  if (!values.empty())
    std::memcpy(bits.data(), values.data(), values.size() * sizeof(double));
  return bits;
}

unsigned widthOf(std::uint64_t largest) {
  unsigned width = 0;
  for (; largest != 0; largest >>= 8U)
    ++width;
  return width;
}

std::string planesOf(const std::vector<std::uint64_t>& numbers, unsigned width) {
  std::string bytes;
  bytes.reserve(numbers.size() * width);
  for (unsigned plane = 0; plane < width; ++plane)
    for (const std::uint64_t number : numbers)
      bytes += static_cast<char>(number >> (8U * plane));
  return bytes;
}

std::string deflated(const std::string& bytes) {
  uLongf length = compressBound(static_cast<uLong>(bytes.size()));
  std::string packed(length, '\0');
  if (compress2(reinterpret_cast<Bytef*>(packed.data()), &length, reinterpret_cast<const Bytef*>(bytes.data()),
                static_cast<uLong>(bytes.size()), Z_BEST_COMPRESSION) != Z_OK)
    throw Failure("the report's series cannot be packed: out of memory");
  packed.resize(length);
  return packed;
}

std::string base64(const std::string& bytes) {
  constexpr const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t index = 0; index < bytes.size(); index += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - index);
    unsigned group = 0;
    for (std::size_t place = 0; place < 3; ++place)
      group = group << 8U | (place < count ? static_cast<unsigned char>(bytes[index + place]) : 0U);
    for (std::size_t place = 0; place < 4; ++place)
      text += place <= count ? digits[group >> (18U - 6U * place) & 63U] : '=';
  }
  return text;
}

} // namespace

std::size_t PackedNumbers::add(const std::vector<double>& values) {
  Entry entry{text_.size(), 0, values.size(), sizeof(double), scaleOf(values), 0};
  std::vector<std::uint64_t> numbers;
  if (entry.scale == doubles) {
    numbers = bitsOf(values);
  } else {
    const double power = powerOfTen(entry.scale);
    std::vector<std::int64_t> wholes(values.size());
    std::transform(values.begin(), values.end(), wholes.begin(),
                   [power](double value) { return static_cast<std::int64_t>(wholeOf(value, power)); });
    const auto [least, most] = std::minmax_element(wholes.begin(), wholes.end());
    entry.least = values.empty() ? 0 : *least;
    entry.width = values.empty() ? 0 : widthOf(static_cast<std::uint64_t>(*most - *least));
    for (const std::int64_t whole : wholes)
      numbers.push_back(static_cast<std::uint64_t>(whole - entry.least));
  }
  const std::string packed = entry.width == 0 ? "" : base64(deflated(planesOf(numbers, entry.width)));
  entry.length = packed.size();
  const auto [place, isNew] = known_.try_emplace(
      fmt::format("{} {} {} {} ", entry.count, entry.width, entry.scale, entry.least) + packed, entries_.size());
  if (isNew) {
    entries_.push_back(entry);
    text_ += packed;
  }
  return place->second;
}

} // namespace LagomareTools
