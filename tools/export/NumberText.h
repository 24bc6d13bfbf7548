#pragma once

#include "model/Date.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace LagomareTools {

/// Year, month and day: "1990-01-31".
[[nodiscard]] std::string isoDate(const Date& date);
/// "1990-01".
[[nodiscard]] std::string isoMonth(const Date& date);

/// A finite number's shortest text that reads back to the same number, with an exponent only where it is very large or
/// very small.
class NumberText {
public:
  explicit NumberText(double value);

  [[nodiscard]] std::string_view view() const { return {text_.data(), length_}; }

private:
  std::array<char, 40> text_{};
  std::size_t length_;
};

} // namespace LagomareTools
