#pragma once

#include <filesystem>
#include <string>

namespace LagomareTools {

/// The file of this program, links resolved; `calledAs` is the name it was called by, for systems that do not tell.
/// Throws Failure where it cannot be found.
[[nodiscard]] std::filesystem::path programPath(const std::string& calledAs);

} // namespace LagomareTools
