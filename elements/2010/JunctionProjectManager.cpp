#include "elements/2010/JunctionProjectManager.h"

#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"

namespace Lagomare2010 {

using namespace Lagomare;

void JunctionProjectManager::makeLambdas() { steps = {NodeProjectManager::loadGeneralInfo}; }

void JunctionProjectManager::validElement() { requireKind(elements, junctionKind, "JunctionProjectManager"); }

unsigned JunctionProjectManager::getElementType() { return 1; }

} // namespace Lagomare2010
