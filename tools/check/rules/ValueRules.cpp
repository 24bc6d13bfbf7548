#include "tools/check/rules/ValueRules.h"

#include "tools/check/rules/Conversions.h"
#include "tools/system/Text.h"

#include <cmath>

namespace LagomareTools {

namespace {

/// -999, -9999, -99.99 and so on: at least three nines and nothing else. Also what no river can have, and what is no
/// number.
bool isMissingMark(double value) {
  if (!(std::fabs(value) < 1e20))
    return true;
  for (const double scale : {1.0, 10.0, 100.0})
    for (double nines = 1000.0; nines <= 1e9; nines *= 10.0)
      if (std::fabs(-value * scale - (nines - 1.0)) < 1e-6)
        return true;
  return false;
}

bool isFraction(Meaning meaning) {
  return meaning == Meaning::loss || meaning == Meaning::target || meaning == Meaning::boundary;
}

bool mayBeNegative(Meaning meaning) { return meaning == Meaning::netEvaporation || meaning == Meaning::level; }

} // namespace

void checkValue(TableRows& rows, std::size_t column, double value) {
  const Meaning meaning = rows.table().columns[column].meaning;
  const auto message = [&] { return quoted(*rows.at(column)); };
  if (isMissingMark(value))
    rows.add(Code::missingValueMark, rows.place(column), [&] { return message() + " comes in as a number"; });
  else if (isFraction(meaning) && (value < 0.0 || value > 1.0))
    rows.add(Code::fractionOutside, rows.place(column), [&] { return message() + " lies outside 0 to 1"; });
  else if (!isFraction(meaning) && !mayBeNegative(meaning) && value < 0.0)
    rows.add(Code::negativeValue, rows.place(column), [&] { return message() + " is negative"; });
}

std::optional<Volumes> readVolumes(TableRows& rows) {
  const auto read = [&rows](Meaning meaning) {
    const std::size_t column = rows.table().columnOf(meaning);
    const auto value = readNumber(rows, column);
    if (value)
      checkValue(rows, column, *value);
    return value;
  };
  const auto maximum = read(Meaning::maximumVolume);
  const auto minimum = read(Meaning::minimumVolume);
  const auto initial = read(Meaning::initialVolume);
  if (!maximum || !minimum || !initial)
    return std::nullopt;
  if (!(*minimum <= *initial && *initial <= *maximum))
    rows.add(Code::volumesOutOfOrder, rows.place(), [&] {
      const auto text = [&rows](Meaning meaning) { return excerpt(oneLine(*rows.at(rows.table().columnOf(meaning)))); };
      return "minimum " + text(Meaning::minimumVolume) + ", initial " + text(Meaning::initialVolume) + ", maximum " +
             text(Meaning::maximumVolume);
    });
  return Volumes{*maximum, *minimum, *initial};
}

} // namespace LagomareTools
