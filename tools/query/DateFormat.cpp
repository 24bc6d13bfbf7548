#include "tools/query/DateFormat.h"

#include "tools/query/Calendar.h"
#include "tools/query/QueryError.h"
#include "tools/query/sqlite/Sqlite.h"
#include <algorithm>
#include <cctype>
#include <exception>

namespace LagomareQuery {

namespace {

/// Whether the text looks like `shape`, in which 0 stands for any digit and other characters for themselves.
bool hasShape(std::string_view text, std::string_view shape) {
  return std::equal(text.begin(), text.end(), shape.begin(), shape.end(), [](char character, char expected) {
    return expected == '0' ? std::isdigit(static_cast<unsigned char>(character)) != 0 : character == expected;
  });
}

int number(std::string_view digits) {
  int value = 0;
  for (const char digit : digits)
    value = value * 10 + (digit - '0');
  return value;
}

/// Whether the text is a time: hours and minutes, seconds and their fraction optional.
bool isTime(std::string_view text) {
  const std::string_view fraction = text.substr(std::min<std::size_t>(text.size(), 8));
  const bool shaped = hasShape(text, "00:00") ||
                      (hasShape(text.substr(0, 8), "00:00:00") &&
                       (fraction.empty() || (fraction.size() > 1 && fraction.front() == '.' &&
                                             fraction.find_first_not_of("0123456789", 1) == std::string_view::npos)));
  return shaped && number(text.substr(0, 2)) < 24 && number(text.substr(3, 2)) < 60 &&
         (text.size() < 8 || number(text.substr(6, 2)) < 60);
}

Day parseIsoDate(std::string_view text) {
  const std::string_view date = text.substr(0, 10);
  const std::string_view rest = text.substr(date.size());
  const bool timed = !rest.empty() && (rest.front() == ' ' || rest.front() == 'T');
  if (hasShape(date, "0000-00-00") && (rest.empty() || (timed && isTime(rest.substr(1))))) {
    const Day day{number(date.substr(0, 4)), number(date.substr(5, 2)), number(date.substr(8, 2))};
    if (isDay(day))
      return day;
  }
  throw QueryError("FORMAT: '" + std::string(text) + "' is no date (YYYY-MM-DD, with or without HH:MM:SS)");
}

std::string padded(int value, std::size_t digits) {
  const std::string text = std::to_string(value);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// Returns the repeated letter that the pattern begins with, such as "yyyy", in lower case; empty if it begins with
/// something else.
std::string leadingLetters(std::string_view pattern) {
  std::string letters;
  for (const char character : pattern) {
    const auto letter = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    if (letter < 'a' || letter > 'z' || (!letters.empty() && letter != letters.front()))
      break;
    letters += letter;
  }
  return letters;
}

void formatInSql(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
    return sqlite3_result_null(context);
  const auto text = [](sqlite3_value* value) {
    const void* characters = sqlite3_value_text(value);
    return std::string_view(static_cast<const char*>(characters), static_cast<std::size_t>(sqlite3_value_bytes(value)));
  };
  try {
    const std::string formatted = formatDate(text(arguments[0]), text(arguments[1]));
    sqlite3_result_text(context, formatted.data(), static_cast<int>(formatted.size()), SQLITE_TRANSIENT);
  } catch (const std::exception& error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

} // namespace

std::string formatDate(std::string_view isoDate, std::string_view pattern) {
  const Day day = parseIsoDate(isoDate);
  std::string formatted;
  while (!pattern.empty()) {
    const std::string letters = leadingLetters(pattern);
    if (letters == "dd")
      formatted += padded(day.day, 2);
    else if (letters == "mm")
      formatted += padded(day.month, 2);
    else if (letters == "yyyy")
      formatted += padded(day.year, 4);
    else if (letters.empty())
      formatted += pattern.front();
    else
      throw QueryError("FORMAT: '" + std::string(pattern.substr(0, letters.size())) +
                       "' is not understood; write dd, mm and yyyy");
    pattern.remove_prefix(std::max<std::size_t>(letters.size(), 1));
  }
  return formatted;
}

void registerDateFormat(sqlite3* connection) {
  constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  if (sqlite3_create_function_v2(connection, "format", 2, flags, nullptr, formatInSql, nullptr, nullptr, nullptr) !=
      SQLITE_OK)
    throwSqliteError(connection);
}

} // namespace LagomareQuery
