#pragma once

#include <filesystem>
#include <string>

namespace LagomareFuzz {

/// A directory of this process; it is removed when the process exits, but not where it dies.
[[nodiscard]] const std::filesystem::path& workplace();

[[nodiscard]] std::string contentOf(const std::filesystem::path& file);
void writeFile(const std::filesystem::path& file, const std::string& content);

/// Damages the bytes, which are not none, as a text says: pairs of decimal numbers, a position (taken modulo the size)
/// and the byte to put there; 256 or more instead of a byte cuts everything from the position on. The first thing that
/// is no number ends the text.
[[nodiscard]] std::string damaged(std::string bytes, std::istream& text);

} // namespace LagomareFuzz
