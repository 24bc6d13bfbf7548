#pragma once

#include "model/Element.h"
#include "model/ElementType.h"
#include "telu_qt_export.h"

#include <memory>
#include <set>
#include <vector>

class TELU_QT_EXPORT ElementsFilter {
public:
  /// The elements whose kind is in the set, in the order given.
  [[nodiscard]] static std::vector<std::shared_ptr<Element>>
  filterByType(const std::vector<std::shared_ptr<Element>>& elements, const std::set<ElementType>& types);
};
