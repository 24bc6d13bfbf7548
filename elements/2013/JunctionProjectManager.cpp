#include "elements/2013/JunctionProjectManager.h"

#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Nodes.h"
#include "elements/common/Steps.h"
#include "model/Junction.h"

namespace Lagomare2013 {

using namespace Lagomare;

const std::string JunctionProjectManager::junctionGeneralInfoTable = "Tk_Pas_FEA";
const std::string JunctionProjectManager::junctionGeneralInfoFields = "NumPonto, Nome, Coord_X, Coord_Y";

void JunctionProjectManager::makeLambdas() { steps = {loadGeneralInfo}; }

void JunctionProjectManager::validElement() { requireKind(elements, junctionKind, "JunctionProjectManager"); }

void JunctionProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<JunctionProjectManager>(base);
  const auto rows = ask("select " + junctionGeneralInfoFields + " from " + junctionGeneralInfoTable, false);
  if (rows.empty())
    return;
  loadNodes<Junction>(rows, loader.elements, loader);
  finishStep(bar);
}

} // namespace Lagomare2013
