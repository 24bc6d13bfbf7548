#pragma once

#include <filesystem>
#include <string>

namespace LagomareFuzz {

/// A directory of this process; it is removed when the process exits, but not where it dies.
[[nodiscard]] const std::filesystem::path& workplace();

[[nodiscard]] std::string contentOf(const std::filesystem::path& file);
void writeFile(const std::filesystem::path& file, const std::string& content);

} // namespace LagomareFuzz
