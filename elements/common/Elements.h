#pragma once

#include "access/Fields.h"
#include "access/QueryResult.h"
#include "elements/common/ElementMap.h"
#include "model/Element.h"
#include "model/ElementType.h"
#include "model/SerieType.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Lagomare {

/// Throws std::invalid_argument where an element is of another kind: the name of the loader's class, then
/// "::validElement(): invalid element type".
void requireKind(const ElementMap& elements, ElementType type, const std::string& loader);

/// What a factory's table holds for a kind. Throws std::invalid_argument where it holds nothing: the operation, then
/// ": invalid element type".
template <typename Maker>
[[nodiscard]] const Maker& makerOf(const std::map<ElementType, Maker>& makers, ElementType type,
                                   const std::string& operation) {
  const auto found = makers.find(type);
  if (found == makers.end())
    throw std::invalid_argument(operation + ": invalid element type");
  return found->second;
}

/// The ids of an answer, ascending, each once.
[[nodiscard]] std::vector<unsigned> idsIn(const std::map<unsigned, std::vector<Row>>& rows);

/// Sets the name from column 1, then the database id from column 0.
void identify(Element& element, const Row& row);

/// Throws std::invalid_argument "Invalid serie type!" where the element has no series of that kind in its first window.
[[nodiscard]] Serie& serieOf(Element& element, SerieType type);

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
      inRow(rows, id, 0, [&, &row = rowsOfId.front()] { visit(element, row); });
}

} // namespace Lagomare
