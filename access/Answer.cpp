#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/Numbers.h"

#include <filesystem>
#include <fstream>

namespace Lagomare {

namespace {

constexpr std::size_t chunk = std::size_t{1} << 16U;

/// All fields but the last, which is never built; so many are expected.
Row fieldsOf(std::string_view line, std::size_t expected) {
  Row fields;
  fields.reserve(expected);
  for (std::size_t end = line.find(' '); end != std::string_view::npos; end = line.find(' ')) {
    fields.emplace_back(line.data(), end);
    line.remove_prefix(end + 1);
  }
  return fields;
}

} // namespace

std::string readAnswer(const std::string& file) {
  std::string text;
  std::ifstream answer(file, std::ios::binary);
  if (!answer)
    return text;
  std::error_code unknown;
  const auto size = std::filesystem::file_size(file, unknown);
  if (!unknown)
    text.reserve(static_cast<std::size_t>(size) + chunk);
  std::streamsize got = 0;
  do {
    const std::size_t length = text.size();
    text.resize(length + chunk);
    answer.read(&text[length], static_cast<std::streamsize>(chunk));
    got = answer.gcount();
    text.resize(length + static_cast<std::size_t>(got));
  } while (got > 0);
  return text;
}

std::uint32_t keyOf(std::string_view line) {
  const std::size_t length = line.find(' ');
  if (length == std::string_view::npos)
    throw InvalidField("stoul", std::string(line));
  return toUnsigned(line.substr(0, length));
}

QueryResult parseRows(std::string_view text) {
  QueryResult rows;
  auto place = rows.end();
  std::size_t fields = 0; // as many as the row before, for all rows of an answer have the same columns
  forEachLine(text, [&](std::string_view line) {
    const std::uint32_t key = keyOf(line);
    Row row = fieldsOf(line, fields);
    fields = row.size();
    // Ids mostly come in runs, and ascending.
    if (place == rows.end() || place->first != key)
      place = rows.try_emplace(rows.end(), key);
    place->second.push_back(std::move(row));
  });
  return rows;
}

} // namespace Lagomare
