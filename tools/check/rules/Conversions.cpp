#include "tools/check/rules/Conversions.h"

#include "access/FieldError.h"
#include "access/Numbers.h"
#include "tools/system/Text.h"

#include <cmath>

namespace LagomareTools {

namespace {

std::size_t hashOf(std::string_view text) { return std::hash<std::string_view>()(text); }

/// Whether what stands behind a number may mean something: not so blanks, and behind a whole number not a point and
/// zeros.
bool isMeant(std::string_view rest, bool isWhole) {
  if (isWhole && rest.substr(0, 1) == "." && rest.find_first_not_of('0', 1) == std::string_view::npos)
    return false;
  return rest.find_first_not_of(" \t\r\xC2\xA0") != std::string_view::npos;
}

void reportCut(TableRows& rows, std::size_t column, std::string_view text, std::size_t length, bool isWhole) {
  if (length == text.size() || !isMeant(text.substr(length), isWhole))
    return;
  rows.add(
      Code::numberCut, rows.place(column),
      [&] { return quoted(text) + " comes in as " + excerpt(std::string(text.substr(0, length))); }, hashOf(text));
}

std::optional<std::string_view> fieldOf(TableRows& rows, std::size_t column) {
  const auto text = rows.at(column);
  if (!text) {
    Place place = rows.place(column);
    place.id.reset();
    place.element = {};
    rows.add(Code::columnMissing, place, [&] {
      return "the row ends before it" +
             std::string(rows.table().isReadWhole
                             ? ""
                             : "; a query executable must write one more field at the end of each line");
    });
  }
  return text;
}

void reportNone(TableRows& rows, std::size_t column, std::string_view text, Code code, const char* wanted) {
  const auto message = [&] {
    if (code == Code::priorityOutOfRange || code == Code::numberOutOfRange)
      return quoted(text) + " does not fit";
    return quoted(text) + " stands where " + wanted + " must stand";
  };
  rows.add(code, rows.place(column), message, hashOf(text));
}

template <typename Convert>
auto convert(TableRows& rows, std::size_t column, Code ifNone, Code ifTooLarge, const char* wanted, Convert convert)
    -> std::optional<decltype(convert(std::string_view()))> {
  const auto text = fieldOf(rows, column);
  if (!text)
    return std::nullopt;
  try {
    return convert(*text);
  } catch (const Lagomare::FieldOutOfRange&) {
    reportNone(rows, column, *text, ifTooLarge, wanted);
  } catch (const Lagomare::InvalidField&) {
    reportNone(rows, column, *text, ifNone, wanted);
  }
  return std::nullopt;
}

} // namespace

std::string quoted(std::string_view field) {
  return field.empty() ? "an empty field" : '"' + excerpt(oneLine(field)) + '"';
}

std::optional<std::uint32_t> readId(TableRows& rows) {
  if (rows.fields().empty()) { // a line without a blank
    rows.add(Code::badId, rows.place(idColumn), [] { return "the answer holds a line that is no row"; });
    return std::nullopt;
  }
  const auto id = convert(rows, idColumn, Code::badId, Code::badId, "an id", Lagomare::toUnsigned);
  if (id) {
    rows.setOwner(id, {});
    const std::string_view text = *rows.at(idColumn);
    reportCut(rows, idColumn, text, Lagomare::lengthOfUnsigned(text), true);
  }
  return id;
}

std::optional<std::uint32_t> readWhole(TableRows& rows, std::size_t column) {
  const auto number =
      convert(rows, column, Code::notANumber, Code::numberOutOfRange, "a whole number from 0 on", Lagomare::toUnsigned);
  if (number)
    reportCut(rows, column, *rows.at(column), Lagomare::lengthOfUnsigned(*rows.at(column)), true);
  return number;
}

std::optional<double> readNumber(TableRows& rows, std::size_t column) {
  if (const auto text = rows.at(column))
    if (const auto number = Lagomare::findDouble(*text)) {
      reportCut(rows, column, *text, number->length, false);
      return number->value;
    }
  return convert(rows, column, Code::notANumber, Code::numberOutOfRange, "a number", Lagomare::toDouble);
}

void readPriority(TableRows& rows, std::size_t column, PriorityUse use) {
  const auto number = readNumber(rows, column);
  if (!number)
    return;
  const auto fits = [&](auto toInteger) {
    return convert(rows, column, Code::notANumber, Code::priorityOutOfRange, "a priority", toInteger).has_value();
  };
  if ((use.isGeneral && !fits(Lagomare::toTruncatedInt)) || (use.isOfState && !fits(Lagomare::toTruncatedUnsigned)))
    return;
  if (*number != std::trunc(*number))
    rows.add(Code::priorityTruncated, rows.place(column), [&] {
      return quoted(*rows.at(column)) + " comes in as " + std::to_string(static_cast<std::int64_t>(*number));
    });
}

} // namespace LagomareTools
