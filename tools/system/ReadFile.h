#pragma once

#include <filesystem>
#include <string>

namespace LagomareTools {

/// The whole file; empty where it cannot be opened or read.
[[nodiscard]] std::string readFile(const std::filesystem::path& file);

} // namespace LagomareTools
