#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>

namespace LagomareTools {

/// Keeps answers in a temporary file, so that a query that is asked again need not be run again. An import asks for the
/// natural flows once for each kind of node. Without a file, or without room for it, nothing is kept.
class AnswerStore {
public:
  /// Makes the file if there is none. It is removed at once or, on a system that cannot remove open files, with the
  /// directory, which must outlive the store. An answer that has begun before is not kept.
  void keepIn(const std::filesystem::path& directory);

  /// Begins to keep the answer to a query, and forgets the one before if it was not completed.
  void begin(const std::string& sql);
  void add(std::string_view text);
  /// From now on open() finds the answer.
  void complete();

  /// Opens the answer to a query. Returns false if there is none.
  [[nodiscard]] bool open(const std::string& sql);
  /// Reads more of the open answer. Returns how many bytes there are; 0 at the end. Throws Failure.
  [[nodiscard]] std::size_t read(char* buffer, std::size_t size);

private:
  /// A part of the file, in bytes.
  struct Part {
    std::uint64_t begin = 0;
    std::uint64_t size = 0;
  };

  std::fstream file_; ///< closed if nothing is kept
  std::map<std::string, Part> answers_;
  std::string sql_;
  bool isKeeping_ = false; ///< whether there is a file for the answer that has begun
  Part written_;
  Part unread_;
};

} // namespace LagomareTools
