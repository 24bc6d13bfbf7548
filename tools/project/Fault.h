#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace LagomareTools {

/// error: the import fails or is refused. warning: it succeeds, but something is not taken or stands elsewhere than it
/// is meant. note: comes in as it stands, and looks wrong.
enum class Severity { error, warning, note };

/// "error", "warning" or "note".
[[nodiscard]] inline const char* nameOf(Severity severity) {
  constexpr std::array<const char*, 3> names{"error", "warning", "note"};
  return names.at(static_cast<std::size_t>(severity));
}

/// Something wrong with a project. What does not apply is empty. Texts are UTF-8 with plain blanks.
struct Fault {
  std::string code; ///< a slug such as "rows-out-of-order"
  Severity severity = Severity::error;
  std::string table;
  std::optional<std::size_t> row; ///< in stored order, from 1
  std::size_t rows = 1;           ///< how many rows the fault stands for, from `row` on where they are a run
  std::optional<std::uint32_t> id;
  std::string element; ///< the element's name
  std::string column;
  std::optional<std::string> value; ///< as found
  std::string message;
  std::string remedy;
};

} // namespace LagomareTools
