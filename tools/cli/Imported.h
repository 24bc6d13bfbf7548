#pragma once

#include "loader/SceneryProjectManagerRet.h"
#include "tools/cli/Dialect.h"

namespace LagomareCli {

/// How an import ended.
struct Imported {
  Dialect dialect;
  bool isDialectFound; ///< the database was asked for it
  SceneryProjectManagerRet result;
};

} // namespace LagomareCli
