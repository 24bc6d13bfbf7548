#pragma once

#include <array>
#include <string>

namespace LagomareTools {

/// The legacy projects' dialects.
enum class Dialect { of2010, of2013 };

constexpr std::array<Dialect, 2> allDialects{Dialect::of2010, Dialect::of2013};

/// "2010" or "2013".
[[nodiscard]] const char* nameOf(Dialect dialect);
[[nodiscard]] Dialect otherThan(Dialect dialect);
/// The table of the general settings, which tells the dialects apart.
[[nodiscard]] const std::string& settingsTableOf(Dialect dialect);

} // namespace LagomareTools
