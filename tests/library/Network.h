#pragma once

#include "model/ElementType.h"
#include "model/PriorityScenario.h"

#include <memory>

class Link;
class Node;

/// A scenario of two years made in the test.
struct Network {
  std::shared_ptr<Node> node(ElementType type, unsigned id);
  std::shared_ptr<Link> link(unsigned id, unsigned upstreamId, unsigned downstreamId);

  std::shared_ptr<PriorityScenario> scenario = make();

private:
  static std::shared_ptr<PriorityScenario> make();
};
