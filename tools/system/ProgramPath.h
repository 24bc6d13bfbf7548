#pragma once

#include <filesystem>

namespace LagomareTools {

/// The file of this program, absolute, symbolic links resolved. Throws Failure if the system does not tell.
[[nodiscard]] std::filesystem::path programPath();

} // namespace LagomareTools
