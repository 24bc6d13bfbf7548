#include "elements/common/Elements.h"

#include "access/Fields.h"

namespace Lagomare {

void requireKind(const ElementMap& elements, ElementType type, const std::string& loader) {
  for (const auto& entry : elements)
    if (!entry.second || static_cast<ElementType>(entry.second->getElementType()->id) != type)
      throw std::invalid_argument(loader + "::validElement(): invalid element type");
}

std::vector<unsigned> idsIn(const std::map<unsigned, std::vector<Row>>& rows) {
  std::vector<unsigned> ids;
  ids.reserve(rows.size());
  for (const auto& entry : rows)
    ids.push_back(entry.first);
  return ids;
}

void identify(Element& element, const Row& row) {
  element.setName(textAt(row, 1));
  element.bdId = unsignedAt(row, 0);
}

Serie& serieOf(Element& element, SerieType type) {
  for (const auto& serie : element.getVectorOfSeries(0))
    if (static_cast<SerieType>(serie->getSerieType().id) == type)
      return *serie;
  throw std::invalid_argument("Invalid serie type!");
}

} // namespace Lagomare
