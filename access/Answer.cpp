#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/LineReader.h"
#include "access/Numbers.h"

#include <utility>

namespace Lagomare {

namespace {

/// Calls startRun(id, rows to expect) where the id changes, and add(text of the id, the line behind it) for each line.
/// Ids mostly come in runs of equal length, and a line that begins like the one before has the same id.
template <typename StartRun, typename Add>
void forEachRow(LineReader lines, StartRun startRun, Add add) {
  std::string idText; // with the blank behind it
  std::size_t runLength = 0;
  for (std::string_view line; lines.next(line); ++runLength) {
    if (idText.empty() || line.substr(0, idText.size()) != idText) {
      const std::size_t length = line.find(' ');
      if (length == std::string_view::npos)
        throw InvalidField("stoul", std::string(line));
      startRun(toUnsigned(line.substr(0, length)), std::exchange(runLength, 0));
      idText = line.substr(0, length + 1);
    }
    add(line.substr(0, idText.size() - 1), line.substr(idText.size()));
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
  const auto startRun = [&](std::uint32_t id, std::size_t rows) { place = entryOf(result, id, rows); };
  forEachRow(LineReader(answer, blockSize), startRun, [&](std::string_view id, std::string_view rest) {
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
  const auto startRun = [&](std::uint32_t id, std::size_t rows) { place = entryOf(result, id, rows, id); };
  forEachRow(LineReader(answer, blockSize), startRun, [&](std::string_view /*id*/, std::string_view rest) {
    if (const std::size_t end = rest.find(' '); end != std::string_view::npos)
      place->second.append(rest.substr(0, end));
    else
      place->second.appendMissing();
  });
  return result;
}

} // namespace Lagomare
