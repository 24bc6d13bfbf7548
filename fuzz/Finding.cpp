#include "fuzz/Finding.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace LagomareFuzz {

void require(bool condition, const std::string& message) {
  if (condition)
    return;
  std::cerr << "FOUND: " << message << std::endl;
  std::abort();
}

std::string exactText(double number) {
  std::array<char, 40> text{};
  return {text.data(), static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%a", number))};
}

} // namespace LagomareFuzz
