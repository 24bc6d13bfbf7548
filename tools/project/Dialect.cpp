#include "tools/project/Dialect.h"

#include "loader/2010/SceneryProjectManager.h"
#include "loader/2013/SceneryProjectManager.h"

namespace LagomareTools {

const char* nameOf(Dialect dialect) { return dialect == Dialect::of2010 ? "2010" : "2013"; }

Dialect otherThan(Dialect dialect) { return dialect == Dialect::of2010 ? Dialect::of2013 : Dialect::of2010; }

const std::string& settingsTableOf(Dialect dialect) {
  return dialect == Dialect::of2010 ? Lagomare2010::SceneryProjectManager::sceneryGeneralInfoTable
                                    : Lagomare2013::SceneryProjectManager::sceneryGeneralInfoTable;
}

} // namespace LagomareTools
