#include "elements/2013/SerieProjectManager.h"

#include "elements/common/Series.h"
#include "elements/common/Steps.h"

namespace Lagomare2013 {

using namespace Lagomare;
using Lagomare::Layout;

void SerieProjectManager::load(SerieType type, const Interval& interval, const std::string& table,
                               const ElementMap& elements, const std::string& where) {
  // The blank before the condition is sent even where there is none.
  const auto values = askValues(ElementProjectManager::valuesOf(table) + " " + where, true);
  loadSeries(values, elements, type, interval, Layout::Sequence);
}

} // namespace Lagomare2013
