#include "tools/check/rules/SeriesRules.h"

#include "access/Numbers.h"
#include "model/NumericalUtils.h"
#include "tools/check/rules/Conversions.h"
#include "tools/check/rules/Months.h"
#include "tools/check/rules/OwnedRows.h"
#include "tools/check/rules/ValueRules.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace LagomareTools {

namespace {

/// As the import tells drains from demands, see Lagomare::isDrain.
bool isOfDrain(double value) { return !(0.0 > NumericalUtils::subtractDoubles(value, 1000.0, 1e-6)); }

class SeriesRules : public OwnedRows {
public:
  SeriesRules(Inspection& inspection, const LegacyTable& table)
      : OwnedRows(inspection, table), months_(rows_, inspection.settings.interval) {
    while (table.columns[valueColumn_].type != Type::number)
      ++valueColumn_;
    if (rows_.isRead() && !months_.areTold())
      rows_.add(Code::orderNotChecked, Place{table.name},
                [] { return "no column tells the month of a row, so the order of the rows cannot be checked"; });
  }

private:
  /// What the rows of a slot say, in comparison with what they come in as.
  struct Series {
    std::size_t numOfOff = 0; ///< rows that come in as another month than they say
    std::size_t firstOffRow = 0;
    std::size_t firstOffIndex = 0; ///< of that row in the series, from 0
    int firstTold = 0;
    std::optional<int> toldBefore;
    std::optional<int> lastTold;
    bool isDrain = true; ///< as far as the rows go
  };

  [[nodiscard]] bool splitsByState() const override { return true; }
  [[nodiscard]] Meaning meaning() const { return table().columns[valueColumn_].meaning; }

  void addRow(Slot& slot) override;
  void addValue(Series& series, bool isTaken);
  void compareMonth(const Slot& slot, Series& series);
  void finish(std::uint32_t id, const ElementRow& element) override;
  [[nodiscard]] std::vector<unsigned> statesToHave() const;
  void reportMissing(std::uint32_t id, const ElementRow& element, const std::vector<unsigned>& states);
  void reportTooFew(const Slot& slot);
  void reportOrder(const Slot& slot);
  [[nodiscard]] std::string whatIsOff(const Series& series) const;

  Months months_;
  std::size_t valueColumn_ = 0;
  std::vector<Series> series_; ///< by slot
};

void SeriesRules::addRow(Slot& slot) {
  if (slot.index >= series_.size())
    series_.resize(numOfSlots());
  Series& series = series_[slot.index];
  const bool isTaken = slot.rows <= months_.numOfRows();
  if (slot.state <= 1 || isTaken) // the base series converts all rows, those of the other states only what they need
    addValue(series, isTaken);
  if (isTaken) {
    take(slot);
    if (months_.areKnown())
      compareMonth(slot, series);
  } else {
    const bool isOfYear = table().layout == Layout::twelveMonths;
    leave(
        isOfYear ? Code::rowsBeyondYear : Code::rowsBeyondPeriod, rows_.place(),
        [&] {
          return "row " + std::to_string(slot.rows) + (isOfYear ? " of twelve" : " of a period of ") +
                 (isOfYear ? "" : std::to_string(months_.numOfRows()) + " months");
        },
        slot.state);
  }
}

void SeriesRules::addValue(Series& series, bool isTaken) {
  const auto text = rows_.at(valueColumn_);
  const auto found = text ? Lagomare::findDouble(*text) : std::nullopt;
  if (!found || (isTaken && found->length != text->size()))
    static_cast<void>(readNumber(rows_, valueColumn_));
  if (!found || !isTaken)
    return;
  series.isDrain = series.isDrain && isOfDrain(found->value);
  if (!isUsual(found->value))
    checkValue(rows_, valueColumn_, found->value);
}

void SeriesRules::compareMonth(const Slot& slot, Series& series) {
  const auto told = months_.told();
  if (!told) {
    rows_.add(
        Code::monthUnreadable, rows_.place(months_.column()),
        [&] { return quoted(rows_.at(months_.column()).value_or("")) + " tells no month"; }, slot.state);
    return;
  }
  if (*told != months_.expected(slot.rows - 1) && series.numOfOff++ == 0) {
    series.firstOffRow = rows_.number();
    series.firstOffIndex = slot.rows - 1;
    series.firstTold = *told;
    series.toldBefore = series.lastTold;
  }
  series.lastTold = told;
}

std::vector<unsigned> SeriesRules::statesToHave() const {
  if (!table().hasStates())
    return {0};
  std::vector<unsigned> states{1};
  for (unsigned state = 2; state <= numOfStates(); ++state)
    states.push_back(state);
  return states;
}

void SeriesRules::finish(std::uint32_t id, const ElementRow& element) {
  std::vector<unsigned> missing;
  for (const unsigned state : statesToHave()) {
    const Slot* const slot = find(id, state);
    if (slot == nullptr) {
      missing.push_back(state);
      continue;
    }
    if (months_.isNumOfRowsKnown() && slot->rows < months_.numOfRows())
      reportTooFew(*slot);
    if (series_[slot->index].numOfOff > 0)
      reportOrder(*slot);
    if (meaning() == Meaning::demand && state == 1 && series_[slot->index].isDrain &&
        slot->rows >= months_.numOfRows()) {
      const Place place{table().name, slot->firstRow, id, element.name};
      rows_.add(Code::drainFound, place, [] { return "its demand is at least 1000 m³/s in every month"; });
    }
  }
  if (!missing.empty())
    reportMissing(id, element, missing);
}

void SeriesRules::reportMissing(std::uint32_t id, const ElementRow& element, const std::vector<unsigned>& states) {
  if (meaning() == Meaning::naturalFlow) { // most demands have none
    Place place{table().name};
    place.id = id;
    place.element = element.name;
    if (element.kind != Kind::demand)
      rows_.add(Code::noNaturalFlow, place, [] { return "there is no row for it"; });
    return;
  }
  const bool isAll = states.size() == statesToHave().size();
  if (isAll)
    return reportAbsence(id, element, std::string("there is no row for it, so ") + table().ifAbsent);
  std::string names;
  for (const unsigned state : states)
    names += (names.empty() ? "" : ", ") + std::to_string(state);
  reportAbsence(id, element,
                "there is no row of state " + names + ", so " +
                    (states.front() == 1 ? std::string("in general ") + table().ifAbsent + ", and " : "") +
                    "the values of " + (states.size() == 1 ? "that state stay 0" : "these states stay 0"));
}

void SeriesRules::reportTooFew(const Slot& slot) {
  const bool isBaseTarget = meaning() == Meaning::target && slot.state == 1;
  const char* const kept = !isBaseTarget ? "0" : numOfStates() == 0 ? "1 (full)" : "1 (full), those of state 1 stay 0";
  const Place place{table().name, slot.firstRow, slot.id, slot.element->name};
  rows_.add(
      Code::tooFewRows, place,
      [&] {
        return std::to_string(slot.rows) + " of " + std::to_string(months_.numOfRows()) + " rows" +
               (slot.state > 0 ? " of state " + std::to_string(slot.state) : "") + ": the values from " +
               months_.textOf(months_.expected(slot.rows)) + " to " +
               months_.textOf(months_.expected(months_.numOfRows() - 1)) + " stay " + kept;
      },
      slot.state);
}

std::string SeriesRules::whatIsOff(const Series& series) const {
  if (!series.toldBefore)
    return "the series begins with it";
  if (*series.toldBefore == series.firstTold)
    return "the row before says the same";
  return series.firstTold < *series.toldBefore ? "it steps back behind " + months_.textOf(*series.toldBefore)
                                               : "there is a gap behind " + months_.textOf(*series.toldBefore);
}

void SeriesRules::reportOrder(const Slot& slot) {
  const Series& series = series_[slot.index];
  Place place{table().name, series.firstOffRow, slot.id, slot.element->name};
  place.column = table().columns[months_.column()].name;
  place.rows = series.numOfOff;
  rows_.add(
      Code::rowsOutOfOrder, place,
      [&] {
        return "row " + std::to_string(series.firstOffRow) + " says " + months_.textOf(series.firstTold) +
               " and comes in as " + months_.textOf(months_.expected(series.firstOffIndex)) + ": " + whatIsOff(series) +
               (slot.state > 0 ? " (state " + std::to_string(slot.state) + ")" : "");
      },
      slot.state);
}

} // namespace

void checkSeries(Inspection& inspection, const LegacyTable& table) { SeriesRules(inspection, table).run(); }

} // namespace LagomareTools
