#include "elements/2010/JunctionProjectManager.h"

namespace Lagomare2010 {

void JunctionProjectManager::makeLambdas() { steps = {NodeProjectManager::loadGeneralInfo}; }

void JunctionProjectManager::validElement() {
  requireKind(elements, ElementType::Junction, "JunctionProjectManager::validElement(): invalid element type");
}

unsigned JunctionProjectManager::getElementType() { return 1; }

} // namespace Lagomare2010
