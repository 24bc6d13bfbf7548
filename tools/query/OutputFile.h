#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace LagomareQuery {

/// A file that is rewritten in place, byte by byte under the caller's control; all that differs between platforms
/// in writing the answer stands in its source. Every failure is a QueryError that names the file.
class OutputFile {
public:
  /// Makes the file hold `content` and nothing else. A file of that name is overwritten in place, so that it is never
  /// missing in between; a link or whatever else is no ordinary file of its own is replaced by a new file.
  OutputFile(std::string path, std::string_view content);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void writeAt(std::uint64_t offset, std::string_view bytes);
  void truncate(std::uint64_t size);
  /// Reports what the system noticed only at the end. Writing again reopens the file.
  void close();

private:
  void openInPlace();
  void replace(std::string_view content);
  void rewrite(std::string_view content);
  [[noreturn]] void fail(int error) const;

  std::string path_;
  int descriptor_ = -1;
};

} // namespace LagomareQuery
