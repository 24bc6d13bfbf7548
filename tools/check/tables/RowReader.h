#pragma once

#include "access/LineReader.h"
#include "access/QuerySource.h"

#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareTools {

/// The rows of an answer, one by one, parted into fields as the query channel does it: at each blank, without the last
/// field.
class RowReader {
public:
  /// Asks the source, which must outlive the reader. Throws what the source throws, as next() does.
  RowReader(Lagomare::QuerySource& source, const std::string& sql, bool flag);

  /// False after the last row.
  [[nodiscard]] bool next();
  /// Makes an earlier row the current one again; `line` must stay.
  void recall(std::size_t number, std::string_view line);

  /// Of the current row, from 1.
  [[nodiscard]] std::size_t number() const { return number_; }
  /// Of the current row; valid until the next one. None where the line has no blank, which is no row at all.
  [[nodiscard]] const std::vector<std::string_view>& fields() const { return fields_; }
  [[nodiscard]] std::string_view line() const { return line_; }

private:
  std::unique_ptr<std::istream> answer_;
  Lagomare::LineReader lines_;
  std::size_t number_ = 0;
  std::string_view line_;
  std::vector<std::string_view> fields_;
};

} // namespace LagomareTools
