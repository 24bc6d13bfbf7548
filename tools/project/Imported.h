#pragma once

#include "loader/SceneryProjectManagerRet.h"
#include "tools/project/Dialect.h"

namespace LagomareTools {

/// How an import ended.
struct Imported {
  Dialect dialect;
  bool isDialectFound; ///< the database was asked for it
  SceneryProjectManagerRet result;
};

} // namespace LagomareTools
