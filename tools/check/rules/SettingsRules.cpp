#include "access/FieldError.h"
#include "access/Numbers.h"
#include "loader/2010/SceneryProjectManager.h"
#include "loader/2013/SceneryProjectManager.h"
#include "model/StringUtils.h"
#include "tools/check/rules/Conversions.h"
#include "tools/check/rules/Rules.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

/// The row that the import takes.
struct SettingsRow {
  std::optional<std::uint32_t> key; ///< nothing where the first column is no number
  std::size_t number;
  std::string line;
};

class SettingsRules {
public:
  explicit SettingsRules(Inspection& inspection)
      : inspection_(inspection), table_(inspection.schema.tables.front()), rows_(inspection, table_) {}

  void run() {
    const std::size_t numOfRows = readAll();
    if (!rows_.isRead())
      return;
    if (numOfRows == 0)
      return reportNoRow();
    if (numOfRows > 1)
      reportFurtherRows(numOfRows - 1);
    rows_.recall(chosen_->number, chosen_->line);
    rows_.take();
    convert();
  }

private:
  [[nodiscard]] std::size_t columnOf(Meaning meaning) const { return table_.columnOf(meaning); }
  [[nodiscard]] bool isDateText() const { return columnOf(Meaning::start) < table_.columns.size(); }

  std::size_t readAll();
  void choose(SettingsRow row);
  void reportBadKey();
  void reportNoRow();
  void reportFurtherRows(std::size_t rows);
  void convert();
  void readPeriod();
  [[nodiscard]] bool isStartGood();
  [[nodiscard]] bool isStartDate();
  void reportBadStart(Meaning meaning, const std::string& reason);

  Inspection& inspection_;
  const LegacyTable& table_;
  TableRows rows_;
  std::optional<SettingsRow> chosen_;
  bool areKeysGood_ = true;   ///< of the rows that do not count
  bool isPeriodGood_ = false; ///< the import can read it
};

/// The import groups the rows by their first column, read as a number, and takes the first row of the smallest one. A
/// first row without such a number stands in while there is no other; its fault is found when it is converted.
std::size_t SettingsRules::readAll() {
  std::size_t numOfRows = 0;
  for (; rows_.next(); ++numOfRows) {
    std::optional<std::uint32_t> key;
    if (const auto text = rows_.at(0); text && Lagomare::lengthOfUnsigned(*text) != 0)
      key = Lagomare::toUnsigned(*text);
    else if (chosen_)
      reportBadKey();
    if (!chosen_ || (key && (!chosen_->key || *key < *chosen_->key)))
      choose({key, rows_.number(), std::string(rows_.line())});
  }
  return numOfRows;
}

void SettingsRules::choose(SettingsRow row) {
  if (chosen_ && !chosen_->key) {
    rows_.recall(chosen_->number, chosen_->line);
    reportBadKey();
  }
  chosen_ = std::move(row);
}

void SettingsRules::reportBadKey() {
  areKeysGood_ = false;
  if (isDateText())
    static_cast<void>(isStartDate());
  else
    static_cast<void>(readWhole(rows_, 0));
}

void SettingsRules::reportNoRow() {
  inspection_.prospect = Prospect::invalid;
  rows_.add(Code::noSettings, Place{table_.name}, [] { return "the table is empty"; });
}

void SettingsRules::reportFurtherRows(std::size_t rows) {
  Place place{table_.name, chosen_->number == 1 ? 2U : 1U};
  place.rows = rows;
  rows_.add(Code::furtherSettingsRows, place,
            [this] { return "row " + std::to_string(chosen_->number) + " is the one that counts"; });
}

void SettingsRules::convert() {
  readPeriod();
  const auto statesSwitch = readWhole(rows_, columnOf(Meaning::statesSwitch));
  if (statesSwitch)
    inspection_.settings.askForStates = (*statesSwitch == 0) == inspection_.schema.isStatesSwitchZero;
  const std::size_t flag = columnOf(Meaning::tacticalFlag);
  const auto tactical = readWhole(rows_, flag);
  if (!tactical || *tactical == 0)
    return;
  rows_.add(Code::tacticalProject, rows_.place(flag),
            [&] { return std::string(*rows_.at(flag)) + " stands for tactical planning"; });
  if (isPeriodGood_ && statesSwitch && areKeysGood_)
    inspection_.prospect = Prospect::refused;
}

void SettingsRules::readPeriod() {
  const bool isStart = isStartGood();
  const std::size_t column = columnOf(Meaning::durationYears);
  const auto duration = readWhole(rows_, column);
  if (duration == 0U)
    rows_.add(Code::emptyPeriod, rows_.place(column), [] { return "the duration is 0 years"; });
  if (!isStart || !duration)
    return;
  isPeriodGood_ = *duration == 0; // the library makes an empty period of it, and may refuse the project then
  if (isPeriodGood_)
    return;
  std::vector<std::string> fields(rows_.fields().begin(), rows_.fields().end());
  try {
    inspection_.settings.interval = inspection_.dialect == Dialect::of2010
                                        ? Lagomare2010::SceneryProjectManager::loadInterval({std::move(fields)})
                                        : Lagomare2013::SceneryProjectManager::loadInterval({std::move(fields)});
    isPeriodGood_ = true;
  } catch (const std::invalid_argument&) {
    rows_.add(Code::periodTooLong, rows_.place(column),
              [&] { return "a duration of " + quoted(*rows_.at(column)) + " years leads past the year 9999"; });
  }
}

bool SettingsRules::isStartGood() {
  if (isDateText())
    return isStartDate();
  const auto year = readWhole(rows_, columnOf(Meaning::startYear));
  const auto month = readWhole(rows_, columnOf(Meaning::startMonth));
  const bool isYear = year && *year >= 1 && *year <= 9999;
  const bool isMonth = month && *month >= 1 && *month <= 12;
  if (year && !isYear)
    reportBadStart(Meaning::startYear, "there is no year " + std::to_string(*year));
  if (month && !isMonth)
    reportBadStart(Meaning::startMonth, "there is no month " + std::to_string(*month));
  return isYear && isMonth;
}

bool SettingsRules::isStartDate() {
  const std::string text(rows_.at(columnOf(Meaning::start)).value_or(""));
  try {
    static_cast<void>(Date::fromString(StringUtils::split(text, ' ').front(), "%d/%m/%Y"));
    return true;
  } catch (const std::invalid_argument&) {
    reportBadStart(Meaning::start, quoted(text) + " is no date");
    return false;
  }
}

void SettingsRules::reportBadStart(Meaning meaning, const std::string& reason) {
  rows_.add(Code::badStart, rows_.place(columnOf(meaning)), [&reason] { return reason; });
}

} // namespace

void checkSettings(Inspection& inspection) { SettingsRules(inspection).run(); }

} // namespace LagomareTools
