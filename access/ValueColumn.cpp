#include "access/ValueColumn.h"

#include "access/FieldError.h"
#include "access/Numbers.h"

void ValueColumn::append(std::string_view text) {
  const std::optional<double> number = Lagomare::readDouble(text);
  if (!number)
    unread_.emplace(size(), text);
  numbers_.push_back(number.value_or(0.0));
}

void ValueColumn::appendMissing() {
  unread_.emplace(size(), std::nullopt);
  numbers_.push_back(0.0);
}

double ValueColumn::checkedNumberAt(std::size_t row) const {
  constexpr std::size_t column = 1;
  const auto unread = unread_.find(row);
  if (unread == unread_.end())
    return numbers_.at(row);
  if (!unread->second)
    throw MissingField(id_, column);
  try {
    return Lagomare::toDouble(*unread->second);
  } catch (FieldError& error) {
    error.setPlace(id_, column);
    throw;
  }
}
