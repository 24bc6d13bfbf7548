#include "tools/export/WorkbookExport.h"

#include "tools/export/Workbook.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace LagomareTools {

namespace {

constexpr double dateWidth = 11; // in characters, as the other widths
constexpr double numberWidth = 12;
constexpr double serieWidth = 16;
constexpr double mostWidth = 40;
constexpr std::size_t charactersPerLine = 10; ///< of a bold name that breaks between words, in a column of a series
constexpr std::size_t mostLines = 4;

/// Rather too wide than too narrow: counts bytes.
double widthOf(std::string_view text) { return std::min(static_cast<double>(text.size()) + 3, mostWidth); }

CellStyle headStyleOf(ColumnType type) {
  return type == ColumnType::integer || type == ColumnType::real ? CellStyle::numberHead : CellStyle::textHead;
}

void addRow(Sheet& sheet, const std::vector<Cell>& cells) {
  for (const Cell& cell : cells)
    sheet.add(cell);
  sheet.endRow();
}

void addHead(Sheet& sheet, const Table& table) {
  for (const Column& column : table.columns)
    sheet.add(std::string(column.name), headStyleOf(column.type));
  sheet.endRow();
}

/// A row for each of the table's columns: its name, and what its only row holds.
void addUpright(Sheet& sheet, const Table& table, const ExportInput& input) {
  table.forEachRow(input, [&](const std::vector<Cell>& cells, const Line&) {
    for (std::size_t column = 0; column < cells.size(); ++column) {
      sheet.add(std::string(table.columns[column].name), CellStyle::textHead);
      sheet.add(cells[column]);
      sheet.endRow();
    }
  });
}

void writeScenarioSheet(Workbook& workbook, const ExportInput& input) {
  Sheet& sheet = workbook.addSheet(scenarioTable.name);
  addUpright(sheet, scenarioTable, input);
  sheet.endRow();
  addHead(sheet, statesTable);
  statesTable.forEachRow(input, [&sheet](const std::vector<Cell>& cells, const Line&) { addRow(sheet, cells); });
  sheet.setWidth(0, 0, numberWidth);
  sheet.setWidth(1, 2, 2 * numberWidth);
}

void writeTableSheet(Workbook& workbook, const Table& table, const ExportInput& input) {
  Sheet& sheet = workbook.addSheet(table.name);
  sheet.freeze(1, 0);
  addHead(sheet, table);
  std::vector<double> widths;
  for (const Column& column : table.columns)
    widths.push_back(std::max(widthOf(column.name), column.type == ColumnType::real ? numberWidth : 0));
  table.forEachRow(input, [&](const std::vector<Cell>& cells, const Line&) {
    for (std::size_t column = 0; column < cells.size(); ++column)
      if (const auto* const text = std::get_if<std::string>(&cells[column]))
        widths[column] = std::max(widths[column], widthOf(*text));
    addRow(sheet, cells);
  });
  for (std::size_t column = 0; column < widths.size(); ++column)
    sheet.setWidth(column, column, widths[column]);
}

/// A kind of series, and a hydrological state or 0 for base series.
using SheetKey = std::pair<SerieType, unsigned>;

/// Both are the scenario's.
struct ElementSerie {
  const Element* element;
  const Serie* serie;
};

using ElementSeries = std::vector<ElementSerie>;

std::map<SheetKey, ElementSeries> seriesBySheet(const Scenario& scenario) {
  std::map<SheetKey, ElementSeries> sheets;
  forEachSerie(scenario, [&sheets](const Element& element, const Serie& serie, unsigned state) {
    if (!serie.getInterval().isEmpty())
      sheets[{static_cast<SerieType>(serie.getSerieType().id), state}].push_back({&element, &serie});
  });
  return sheets;
}

std::string stateSuffix(unsigned state) { return state == 0 ? "" : ", state " + std::to_string(state); }

std::string sheetNameOf(const SheetKey& key, std::size_t part) {
  static const std::map<SerieType, std::string> names{{SerieType::Precipitation, "precipitation"},
                                                      {SerieType::Evapotranspiration, "evaporation"},
                                                      {SerieType::NaturalAffluentFlow, "natural flow"},
                                                      {SerieType::TargetVolume, "target volume"},
                                                      {SerieType::WaterDemand, "demand"},
                                                      {SerieType::LinkLoss, "loss"},
                                                      {SerieType::LinkLimitSerie, "flow limit"}};
  const auto known = names.find(key.first);
  return (known != names.end() ? known->second : "series " + std::to_string(static_cast<int>(key.first))) +
         stateSuffix(key.second) + (part == 0 ? "" : " (" + std::to_string(part + 1) + ")");
}

/// The months from the first that one of the series has to the last.
Interval periodOf(const ElementSeries& series) {
  Interval period = series.front().serie->getInterval();
  for (const ElementSerie& entry : series) {
    const Interval& interval = entry.serie->getInterval();
    period =
        Interval(std::min(period.getBegin(), interval.getBegin()),
                 period.getEnd() < interval.getEnd() ? interval.getEnd() : period.getEnd(), period.getPeriodicity());
  }
  return period;
}

/// A row of the sheet's head: what it is, then a cell for each of the series.
template <typename CellOf>
void addHeadRow(Sheet& sheet, const char* label, const ElementSeries& series, CellOf cellOf) {
  sheet.add(std::string(label), CellStyle::textHead);
  for (const ElementSerie& entry : series)
    sheet.add(cellOf(entry), CellStyle::numberHead);
  sheet.endRow();
}

void addSheetHead(Sheet& sheet, const SheetKey& key, const ElementSeries& series) {
  const Serie& first = *series.front().serie;
  for (const auto& [label, text] : {std::pair("series", first.getSerieType().name + stateSuffix(key.second)),
                                    std::pair("unit", first.getUnit().name)}) {
    sheet.add(std::string(label), CellStyle::textHead);
    sheet.add(text);
    sheet.endRow();
  }
  std::size_t longest = 0;
  for (const ElementSerie& entry : series)
    longest = std::max(longest, entry.element->getName().size());
  addHeadRow(sheet, "id", series, [](const ElementSerie& entry) { return Cell(std::int64_t{entry.element->bdId}); });
  sheet.setHeight(std::min(longest / charactersPerLine + 1, mostLines));
  addHeadRow(sheet, "name", series,
             [](const ElementSerie& entry) { return Cell(plainText(entry.element->getName())); });
}

void writeSeriesSheet(Sheet& sheet, const SheetKey& key, const ElementSeries& series) {
  addSheetHead(sheet, key, series);
  sheet.freeze(4, 1);
  sheet.setWidth(0, 0, dateWidth);
  sheet.setWidth(1, series.size(), serieWidth);
  const Interval period = periodOf(series);
  for (Date month = period.getBegin(); month <= period.getEnd(); month += Calendar::incInterval(month, period)) {
    sheet.add(month);
    for (const auto& [element, serie] : series)
      sheet.add(valueAt(*serie, month));
    sheet.endRow();
  }
}

} // namespace

void writeWorkbook(const std::filesystem::path& file, const ExportInput& input) {
  constexpr std::size_t mostSeries = Sheet::mostColumns - 1; // beside the months
  Workbook workbook(file);
  writeScenarioSheet(workbook, input);
  for (const Table* table : {&nodesTable, &linksTable, &curvesTable})
    writeTableSheet(workbook, *table, input);
  for (const auto& [key, series] : seriesBySheet(*input.imported.result.scenario))
    for (std::size_t begin = 0; begin < series.size(); begin += mostSeries) {
      const auto first = series.begin() + static_cast<std::ptrdiff_t>(begin);
      const auto count = static_cast<std::ptrdiff_t>(std::min(mostSeries, series.size() - begin));
      writeSeriesSheet(workbook.addSheet(sheetNameOf(key, begin / mostSeries)), key, {first, first + count});
    }
  workbook.save();
}

} // namespace LagomareTools
