#pragma once

#include "access/QueryResult.h"
#include "model/Element.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The elements that a loader fills, by database id; shared with whoever made them.
using ElementMap = std::map<unsigned, std::shared_ptr<Element>>;

/// Throws std::invalid_argument with the given text where an element is of another kind.
void requireKind(const ElementMap& elements, ElementType type, const std::string& fault);

/// The ids of an answer, ascending, each once.
[[nodiscard]] std::vector<unsigned> idsIn(const QueryResult& rows);

/// Sets the name from column 1, then the database id from column 0.
void identify(Element& element, const Row& row);

/// Throws std::invalid_argument "Invalid serie type!" where the element has no series of that kind.
[[nodiscard]] Serie& serieOf(const Element& element, SerieType type);

/// The element of an id as a T; empty where the map lacks it or it is something else.
template <typename T>
[[nodiscard]] std::shared_ptr<T> findElement(const ElementMap& elements, unsigned id) {
  const auto found = elements.find(id);
  return found == elements.end() ? nullptr : std::dynamic_pointer_cast<T>(found->second);
}

/// Calls visit(element, firstRow) for each id of the answer, ascending. An id that is not among the elements
/// is skipped, and so are the further rows of an id.
template <typename T, typename Visit>
void forEachElement(const QueryResult& rows, const ElementMap& elements, Visit visit) {
  for (const auto& [id, rowsOfId] : rows)
    if (const auto element = findElement<T>(elements, id))
      visit(element, rowsOfId.front());
}
