#include "access/ValueResult.h"

#include "access/Answer.h"
#include "access/FieldError.h"
#include "access/Numbers.h"

#include <algorithm>

namespace {

constexpr std::size_t valueIndex = 1;

/// The field that begins there; without data where that is the line's last field.
std::string_view valueOf(std::string_view line, std::size_t begin) {
  const std::size_t end = line.find(' ', begin);
  return end == std::string_view::npos ? std::string_view() : line.substr(begin, end - begin);
}

} // namespace

double ValueColumn::numberAt(std::size_t row) const {
  const std::string_view text = texts_.at(row);
  if (text.data() == nullptr)
    throw MissingField(id_, valueIndex);
  try {
    return Lagomare::toDouble(text);
  } catch (FieldError& error) {
    error.setPlace(id_, valueIndex);
    throw;
  }
}

ValueResult::ValueResult(std::string text) : text_(std::move(text)) {
  std::string_view key; // of the last run, with its blank
  Lagomare::forEachLine(text_, [this, &key](std::string_view line) {
    const auto begin = static_cast<std::size_t>(line.data() - text_.data());
    if (key.empty() || line.substr(0, key.size()) != key) {
      const std::uint32_t id = Lagomare::keyOf(line);
      key = line.substr(0, line.find(' ') + 1);
      runs_.push_back({id, begin, begin, key.size()});
    }
    runs_.back().end = begin + line.size();
  });
  const auto byId = [](const Run& a, const Run& b) { return a.id < b.id; };
  if (!std::is_sorted(runs_.begin(), runs_.end(), byId))
    std::stable_sort(runs_.begin(), runs_.end(), byId);
}

void ValueResult::appendValues(const Run& run, ValueColumn& values) const {
  Lagomare::forEachLine(std::string_view(text_).substr(run.begin, run.end - run.begin),
                        [&](std::string_view line) { values.texts_.push_back(valueOf(line, run.valueOffset)); });
}
