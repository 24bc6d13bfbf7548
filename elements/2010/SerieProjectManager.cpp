#include "elements/2010/SerieProjectManager.h"

#include "elements/common/Kinds.h"
#include "elements/common/Series.h"
#include "elements/common/Steps.h"

namespace Lagomare2010 {

using namespace Lagomare;
using Lagomare::Layout;

void SerieProjectManager::load(SerieType type, const Interval& interval, const std::string& table,
                               const ElementMap& elements, const std::string& idField, const std::string& valueField,
                               const std::string& where) {
  const auto values = askValues("select " + idField + ", " + valueField + " from " + table + " " + where, true);
  loadSeries(values, elements, type, interval, Layout::MonthlyProfile);
}

void SerieProjectManager::loadNatFlow(const Interval& interval, const ElementMap& elements) {
  const auto values = askValues("select Pto, U from " + ElementProjectManager::natFlowTable, true);
  loadSeries(values, elements, naturalFlowSeries, interval, Layout::Sequence);
}

} // namespace Lagomare2010
