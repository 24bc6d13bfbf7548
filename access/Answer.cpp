#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/LineReader.h"
#include "access/Numbers.h"
#include "access/ValueColumn.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Lagomare {

namespace {

/// The id at the beginning of a line, `length` characters long.
std::uint32_t readId(std::string_view line, std::size_t length, std::size_t number) {
  try {
    if (length == std::string_view::npos)
      throw InvalidField("stoul", std::string(line));
    return toUnsigned(line.substr(0, length));
  } catch (FieldError& error) {
    error.setPlace(std::nullopt, 0);
    error.setRow(number);
    throw;
  }
}

/// Calls startRun(id, number, rows to expect) where the id changes, and add(text of the id, the line behind it, number)
/// for each line. The number is the line's, from 1.
/// Ids mostly come in runs of equal length, and a line that begins like the one before has the same id.
template <typename StartRun, typename Add>
void forEachRow(LineReader lines, StartRun startRun, Add add) {
  std::string idText; // with the blank behind it
  std::size_t number = 1;
  std::size_t runBegin = 1;
  for (std::string_view line; lines.next(line); ++number) {
    if (idText.empty() || line.substr(0, idText.size()) != idText) {
      const std::size_t length = line.find(' ');
      startRun(readId(line, length, number), number, number - std::exchange(runBegin, number));
      idText = line.substr(0, length + 1);
    }
    add(line.substr(0, idText.size() - 1), line.substr(idText.size()), number);
  }
}

/// The entry of an id, which gets room for so many rows where it is new. Ids mostly ascend.
template <typename Result, typename... Arguments>
typename Result::iterator entryOf(Result& result, std::uint32_t id, std::size_t rows, Arguments... arguments) {
  const auto entry = result.try_emplace(result.end(), id, arguments...);
  if (entry->second.size() == 0)
    entry->second.reserve(rows);
  return entry;
}

} // namespace

QueryResult parseRows(std::istream& answer, std::size_t blockSize) {
  QueryResult result;
  auto place = result.end();
  std::size_t expected = 1; // as many fields as the row before: all rows of an answer have the same columns
  const auto startRun = [&](std::uint32_t id, std::size_t number, std::size_t rows) {
    result.startRun(id, number);
    place = entryOf(result, id, rows);
  };
  forEachRow(LineReader(answer, blockSize), startRun,
             [&](std::string_view id, std::string_view rest, std::size_t /*number*/) {
               Row& row = place->second.emplace_back();
               row.reserve(expected);
               row.emplace_back(id);
               for (std::size_t end = rest.find(' '); end != std::string_view::npos; end = rest.find(' ')) {
                 row.emplace_back(rest.data(), end);
                 rest.remove_prefix(end + 1);
               }
               expected = row.size();
             });
  return result;
}

ValueResult parseValues(std::istream& answer, std::size_t blockSize) {
  ValueResult result;
  auto place = result.end();
  const auto startRun = [&](std::uint32_t id, std::size_t, std::size_t rows) { place = entryOf(result, id, rows, id); };
  forEachRow(LineReader(answer, blockSize), startRun,
             [&](std::string_view /*id*/, std::string_view rest, std::size_t number) {
               ValueColumn& column = place->second;
               const std::size_t end = rest.find(' ');
               if (end == std::string_view::npos)
                 column.appendUnread(std::nullopt, number);
               else if (const auto value = readDouble(rest.substr(0, end)))
                 column.append(*value);
               else
                 column.appendUnread(std::string(rest.substr(0, end)), number);
             });
  return result;
}

} // namespace Lagomare
