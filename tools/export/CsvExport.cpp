#include "tools/export/CsvExport.h"

#include "tools/export/NumberText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::string_view endOfRecord = "\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Adds cells to a record in one of the formats.
class Record {
public:
  explicit Record(CsvFormat format) : isBrazilian_(format == CsvFormat::excelBr) {}

  void add(const Cell& cell) {
    if (!isFirst_)
      text_ += isBrazilian_ ? ';' : ',';
    isFirst_ = false;
    std::visit([this](const auto& value) { append(value); }, cell);
  }

  void writeTo(FileWriter& out) {
    text_ += endOfRecord;
    out.write(text_);
    text_.clear();
    isFirst_ = true;
  }

private:
  void append(std::monostate) {}
  void append(bool value) { text_ += value ? "true" : "false"; }
  void append(std::int64_t value) { text_ += std::to_string(value); }
  void append(const Date& value) { text_ += isoDate(value); }
  void append(double value) {
    const auto begin = static_cast<std::ptrdiff_t>(text_.size());
    text_ += NumberText(value).view();
    if (isBrazilian_)
      std::replace(text_.begin() + begin, text_.end(), '.', ',');
  }
  void append(const std::string& value) {
    if (value.find_first_of(isBrazilian_ ? ";\"\r\n" : ",\"\r\n") == std::string::npos) {
      text_ += value;
      return;
    }
    text_ += '"';
    for (const char c : value)
      text_.append(c == '"' ? 2 : 1, c);
    text_ += '"';
  }

  bool isBrazilian_;
  bool isFirst_ = true;
  std::string text_;
};

} // namespace

const std::array<CsvTable, 4> csvTables{{{"elements.csv", nodesTable},
                                         {"links.csv", linksTable},
                                         {"series.csv", seriesTable},
                                         {"curves.csv", curvesTable}}};

void writeCsv(FileWriter& out, const Table& table, const ExportInput& input) {
  if (input.csvFormat == CsvFormat::excelBr)
    out.write(byteOrderMark);
  Record record(input.csvFormat);
  for (const Column& column : table.columns)
    record.add(std::string(column.name));
  record.writeTo(out);
  table.forEachRow(input, [&](const std::vector<Cell>& cells, const Line&) {
    for (const Cell& cell : cells)
      record.add(cell);
    record.writeTo(out);
  });
}

} // namespace LagomareTools
