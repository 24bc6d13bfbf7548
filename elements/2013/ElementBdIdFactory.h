#pragma once

#include "lagomare_export.h"
#include "model/ElementType.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Lagomare2013 {

/// The database ids of the elements of a kind, ascending, each once.
class LAGOMARE_EXPORT ElementBdIdFactory {
public:
  /// The kinds that are served: 0, 2, 7 and 11.
  static const std::map<ElementType, std::function<std::vector<unsigned>()>> mapOfLambdas;

  ElementBdIdFactory() = delete;

  /// Throws std::invalid_argument "ElementBdIdFactory::makeVectorOfBdIds: invalid element type" for kinds
  /// other than 0, 2, 7 and 11.
  [[nodiscard]] static std::vector<unsigned> makeVectorOfBdIds(ElementType type);

  [[nodiscard]] static std::vector<unsigned> makeJunction();
  [[nodiscard]] static std::vector<unsigned> makeReservoir();
  [[nodiscard]] static std::vector<unsigned> makeDemand();
  [[nodiscard]] static std::vector<unsigned> makeLink();

  [[nodiscard]] static std::vector<unsigned>
  makeVector(const std::map<unsigned, std::vector<std::vector<std::string>>>& rows);
};

} // namespace Lagomare2013
