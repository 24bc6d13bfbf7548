#pragma once

#include <stdexcept>
#include <string>

namespace LagomareFuzz {

/// Ends the process with a message that libFuzzer shows and keeps the input for, unless the condition holds.
void require(bool condition, const std::string& message);

/// Tells numbers apart to the bit, but for what a NaN carries.
[[nodiscard]] std::string exactText(double number);

/// What a call gives, as text: show(call()), or the kind and text of the standard exception that it throws.
template <typename Call, typename Show>
[[nodiscard]] std::string outcomeOf(Call call, Show show) {
  try {
    return show(call());
  } catch (const std::invalid_argument& error) {
    return std::string("invalid argument: ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("out of range: ") + error.what();
  }
}

} // namespace LagomareFuzz
