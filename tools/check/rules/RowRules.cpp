#include "tools/check/rules/Conversions.h"
#include "tools/check/rules/OwnedRows.h"
#include "tools/check/rules/Rules.h"
#include "tools/check/rules/SeriesRules.h"
#include "tools/check/rules/ValueRules.h"
#include "tools/export/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace LagomareTools {

namespace {

std::string rangeText(double from, double to) {
  return "from " + std::string(NumberText(from).view()) + " to " + std::string(NumberText(to).view());
}

bool areFinite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

/// The first row of each id counts; of a limit, the first one of state 1.
class OneRow : public OwnedRows {
public:
  using OwnedRows::OwnedRows;

private:
  [[nodiscard]] std::optional<Code> whyNotAsked(unsigned state) const override {
    if (state == 1)
      return std::nullopt;
    return state == 0 ? Code::stateNotRead : Code::limitOfOtherState;
  }

  /// Limits of other states that are the same as that of state 1 are one fault of the table.
  void reportUnasked(Code code) override {
    if (code != Code::limitOfOtherState)
      return OwnedRows::reportUnasked(code);
    const std::size_t column = table().columnOf(Type::number);
    const std::string limit(rows_.at(column).value_or(""));
    const auto first = limits_.find(rows_.at(0).value_or(""));
    if (first != limits_.end() && first->second == limit)
      return leave(code, Place{table().name, rows_.number()},
                   [] { return "they are the same as the limits of state 1, whose links they belong to"; });
    setOwnerIfKnown();
    leave(code, rows_.place(column), [&] {
      return "the limit " + quoted(limit) + " of state " + std::to_string(state()) + " stays behind" +
             (first == limits_.end() ? "" : "; that of state 1 is " + quoted(first->second));
    });
  }

  void addRow(Slot& slot) override {
    if (slot.rows > 1) {
      const auto message = [&slot] { return "row " + std::to_string(slot.firstRow) + " counts"; };
      return leave(Code::repeatedId, rows_.place(), message);
    }
    take(slot);
    if (table().layout == Layout::firstState)
      limits_.emplace(*rows_.at(0), rows_.at(table().columnOf(Type::number)).value_or(""));
    if (table().columnOf(Meaning::maximumVolume) < table().columns.size()) {
      if (const auto volumes = readVolumes(rows_))
        inspection_.elements.volumes.emplace(slot.id, *volumes);
      return;
    }
    for (std::size_t column = 1; column < table().columns.size(); ++column)
      readField(column);
  }

  void readField(std::size_t column) {
    const Type type = table().columns[column].type;
    if (type == Type::wholeNumber)
      static_cast<void>(readWhole(rows_, column));
    else if (type == Type::number)
      if (const auto value = readNumber(rows_, column))
        checkValue(rows_, column, *value);
  }

  void finish(std::uint32_t id, const ElementRow& element) override {
    if (find(id, 0) == nullptr)
      reportAbsence(id, element, std::string("there is no row for it, so ") + table().ifAbsent);
  }

  std::map<std::string, std::string, std::less<>> limits_; ///< of state 1, by id, as they stand in the database
};

/// All rows of an id are a reservoir's curve, in their order.
class Curves : public OwnedRows {
public:
  using OwnedRows::OwnedRows;

private:
  struct Point {
    double level;
    double area;
    double volume;
  };
  struct Curve {
    std::optional<Point> last;
    double leastVolume = 0.0;
    double mostVolume = 0.0;
  };

  std::optional<double> read(Meaning meaning) {
    const std::size_t column = table().columnOf(meaning);
    const auto value = readNumber(rows_, column);
    if (value)
      checkValue(rows_, column, *value);
    return value;
  }

  void addRow(Slot& slot) override {
    take(slot);
    const auto level = read(Meaning::level);
    const auto area = read(Meaning::area);
    const auto volume = read(Meaning::volume);
    curves_.resize(numOfSlots());
    if (level && area && volume)
      addPoint(curves_[slot.index], {*level, *area, *volume});
  }

  void addPoint(Curve& curve, const Point& point) {
    if (curve.last &&
        !(point.level > curve.last->level && point.volume > curve.last->volume && point.area >= curve.last->area))
      rows_.add(Code::curveNotRising, rows_.place(), [] { return "the point does not lie above the one before it"; });
    curve.leastVolume = curve.last ? std::min(curve.leastVolume, point.volume) : point.volume;
    curve.mostVolume = curve.last ? std::max(curve.mostVolume, point.volume) : point.volume;
    curve.last = point;
  }

  void finish(std::uint32_t id, const ElementRow& element) override {
    const Slot* const slot = find(id, 0);
    if (slot == nullptr)
      return reportAbsence(id, element, std::string("there is no row for it, so ") + table().ifAbsent);
    Place place{table().name, slot->firstRow, id, element.name};
    if (slot->rows == 1)
      return rows_.add(Code::curveTooShort, place, [] { return "the curve has a single point"; });
    const auto volumes = inspection_.elements.volumes.find(id);
    const Curve& curve = curves_[slot->index];
    place.row.reset();
    if (!curve.last || volumes == inspection_.elements.volumes.end())
      return;
    const auto& [maximum, minimum, initial] = volumes->second;
    if (areFinite({curve.leastVolume, curve.mostVolume, minimum, maximum}) &&
        (curve.leastVolume > minimum || curve.mostVolume < maximum))
      rows_.add(Code::curveNotCovering, place, [&, from = minimum, to = maximum] {
        return "it reaches " + rangeText(curve.leastVolume, curve.mostVolume) + " hm³, the reservoir " +
               rangeText(from, to) + " hm³";
      });
  }

  std::vector<Curve> curves_; ///< by slot
};

/// Of the rows of state 1 the first is the general priority; with states, row i of all is that of state i.
class Priorities : public OwnedRows {
public:
  using OwnedRows::OwnedRows;

private:
  [[nodiscard]] std::optional<Code> whyNotAsked(unsigned state) const override {
    return state == 1 || numOfStates() > 0 ? std::nullopt : std::optional(Code::stateNotRead);
  }

  void addRow(Slot& slot) override {
    hasGeneral_.resize(numOfSlots());
    const bool isGeneral = state() == 1 && !hasGeneral_[slot.index];
    const bool isOfState = slot.rows <= numOfStates();
    if (isGeneral)
      hasGeneral_[slot.index] = true;
    readPriority(rows_, table().columnOf(Type::priority), {isGeneral, numOfStates() > 0});
    if (isGeneral || isOfState)
      take(slot);
    else
      leaveFurther(slot);
    if (isOfState && state() != slot.rows)
      rows_.add(Code::statesOutOfOrder, rows_.place(table().columnOf(Type::state)), [&] {
        return "row " + std::to_string(slot.rows) + " of the id comes in as state " + std::to_string(slot.rows) +
               ", but says " + quoted(*rows_.at(table().columnOf(Type::state)));
      });
  }

  void leaveFurther(const Slot& slot) {
    if (numOfStates() > 0)
      leave(Code::stateNotRead, rows_.place(), [this] {
        return "the id has more rows than the " + std::to_string(numOfStates()) + " states of the project";
      });
    else
      leave(Code::repeatedId, rows_.place(), [&] { return "row " + std::to_string(slot.firstRow) + " counts"; });
  }

  void finish(std::uint32_t id, const ElementRow& element) override {
    const Slot* const slot = find(id, 0);
    if (slot == nullptr)
      return reportAbsence(id, element, std::string("there is no row for it, so ") + table().ifAbsent);
    if (!hasGeneral_[slot->index])
      reportAbsence(id, element, std::string("there is no row of state 1, so in general ") + table().ifAbsent);
    Place place{table().name, slot->firstRow, id, element.name};
    if (slot->rows < numOfStates())
      rows_.add(Code::tooFewRows, place, [&] {
        return std::to_string(slot->rows) + " rows for " + std::to_string(numOfStates()) +
               " states: the priorities of the last states stay 0";
      });
  }

  std::vector<bool> hasGeneral_; ///< by slot
};

} // namespace

void checkOwnedRows(Inspection& inspection, const LegacyTable& table) {
  switch (table.layout) {
  case Layout::points:
    return Curves(inspection, table).run();
  case Layout::priorities:
    return Priorities(inspection, table).run();
  case Layout::twelveMonths:
  case Layout::period:
    return checkSeries(inspection, table);
  default:
    return OneRow(inspection, table).run();
  }
}

} // namespace LagomareTools
