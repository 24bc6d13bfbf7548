#include "elements/common/Steps.h"

#include "access/LagomareProjectManager.h"
#include "model/TeluCoreProgressBar.h"

namespace Lagomare {

QueryResult ask(const std::string& sql, bool flag) { return LagomareProjectManager::getInstance()->query(sql, flag); }

ValueResult askValues(const std::string& sql, bool flag) {
  return LagomareProjectManager::getInstance()->queryValues(sql, flag);
}

void finishStep(TeluCoreProgressBar& bar) {
  if (!bar.update())
    throw TeluCoreProgressBar::ProgressCancelException();
}

} // namespace Lagomare
