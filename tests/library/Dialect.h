#pragma once

#include "loader/LagomareProjectLoader.h"

#include <functional>
#include <string>

/// What tests need to know of a dialect: a project is written once, in the tables of commonTables, and turned
/// into the dialect's own.
struct Dialect {
  const char* name;
  SceneryProjectManagerRet (*load)(const std::string&, const std::string&, std::function<bool(long, long)>);
  const char* tables; ///< SQL that makes the dialect's tables out of the common ones
};

/// SQL of the temporary tables in which tests write: a project of one year from January 2000 on, without states, to be
/// filled. Rows stay in the order in which they are inserted; a column left
/// out takes its default. Evaporation is in mm, loss a fraction; month holds the numbers 1 to 12.
extern const char* const commonTables;

extern const Dialect dialect2010;
extern const Dialect dialect2013;
