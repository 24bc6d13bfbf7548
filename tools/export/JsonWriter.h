#pragma once

#include "tools/system/FileWriter.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace LagomareTools {

/// Writes JSON piece by piece: commas come by themselves, brackets must be opened and closed in pairs, and inside an
/// object each value must be preceded by its key.
class JsonWriter {
public:
  explicit JsonWriter(FileWriter& out) : out_(out) {}

  void beginObject() { open('{'); }
  void endObject() { close('}'); }
  void beginArray() { open('['); }
  void endArray() { close(']'); }
  void key(std::string_view name);
  /// The next piece stands on a line of its own.
  void breakLine() { breaksLine_ = true; }

  /// As people see it (plainText).
  void text(std::string_view text);
  /// null where it is not finite or missing.
  void number(std::optional<double> value);
  /// As number(), but a whole number keeps a decimal ("12.0"): programs take a column's type from a number's text.
  void real(std::optional<double> value);
  void integer(std::optional<std::int64_t> value);
  void truth(bool value) { piece(value ? "true" : "false"); }
  void null() { piece("null"); }

  void text(std::string_view name, std::string_view value) { key(name), text(value); }
  void number(std::string_view name, std::optional<double> value) { key(name), number(value); }
  void real(std::string_view name, std::optional<double> value) { key(name), real(value); }
  void integer(std::string_view name, std::optional<std::int64_t> value) { key(name), integer(value); }
  void truth(std::string_view name, bool value) { key(name), truth(value); }

private:
  void separate();
  void piece(std::string_view json);
  void open(char bracket);
  void close(char bracket);

  FileWriter& out_;
  bool needsComma_ = false;
  bool breaksLine_ = false;
};

} // namespace LagomareTools
