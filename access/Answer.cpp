#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/Numbers.h"
#include "model/StringUtils.h"

#include <filesystem>
#include <fstream>

namespace Lagomare {

namespace {

constexpr std::size_t chunk = std::size_t{1} << 16U;

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
  std::string line;
  forEachLine(text, [&](std::string_view lineView) {
    const std::uint32_t key = keyOf(lineView);
    line.assign(lineView);
    Row row = StringUtils::split(line, ' ');
    row.pop_back();
    // Ids mostly come in runs, and ascending.
    if (place == rows.end() || place->first != key)
      place = rows.try_emplace(rows.end(), key);
    place->second.push_back(std::move(row));
  });
  return rows;
}

} // namespace Lagomare
