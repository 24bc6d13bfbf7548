#include "model/ElementsFilter.h"

#include <algorithm>
#include <iterator>

std::vector<std::shared_ptr<Element>>
ElementsFilter::filterByType(const std::vector<std::shared_ptr<Element>>& elements,
                             const std::set<ElementType>& types) {
  std::vector<std::shared_ptr<Element>> found;
  std::copy_if(elements.begin(), elements.end(), std::back_inserter(found),
               [&types](const auto& element) { return types.count(element->getElementType()->type()) != 0; });
  return found;
}
