#include "tools/check/tables/Tables.h"

#include <algorithm>

namespace LagomareTools {

const std::vector<KindCode> kindCodes{{"1", Kind::junction}, {"2", Kind::reservoir}, {"3", Kind::demand}};

const char* nameOf(Kind kind) {
  switch (kind) {
  case Kind::reservoir:
    return "reservoir";
  case Kind::demand:
    return "demand";
  case Kind::junction:
    return "junction";
  case Kind::link:
    break;
  }
  return "link";
}

std::size_t LegacyTable::columnOf(Type type) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [type](const LegacyColumn& c) { return c.type == type; });
  return static_cast<std::size_t>(found - columns.begin());
}

std::size_t LegacyTable::columnOf(Meaning meaning) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [meaning](const LegacyColumn& c) { return c.meaning == meaning; });
  return static_cast<std::size_t>(found - columns.begin());
}

bool LegacyTable::isOwnedBy(Kind kind) const { return std::find(owners.begin(), owners.end(), kind) != owners.end(); }

const Schema& schemaOf(Dialect dialect) { return dialect == Dialect::of2010 ? schemaOf2010() : schemaOf2013(); }

} // namespace LagomareTools
