#include "access/ValueColumn.h"

#include "access/FieldError.h"
#include "access/Numbers.h"

#include <utility>

namespace Lagomare {

void ValueColumn::appendUnread(std::optional<std::string> text, std::size_t number) {
  unread_.emplace(size(), Unread{std::move(text), number});
  values_.push_back(0.0);
}

double ValueColumn::checkedNumberAt(std::size_t row) const {
  constexpr std::size_t column = 1;
  const auto found = unread_.find(row);
  if (found == unread_.end())
    return values_.at(row);
  const Unread& unread = found->second;
  try {
    if (!unread.text)
      throw MissingField(id_, column);
    return toDouble(*unread.text);
  } catch (FieldError& error) {
    error.setPlace(id_, column);
    error.setRow(unread.number);
    throw;
  }
}

} // namespace Lagomare
