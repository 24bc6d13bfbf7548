#pragma once

#include "elements/common/Elements.h"
#include "model/Link.h"
#include "model/Scenario.h"

/// The flow limit of each link, from column 1: one constant over the interval. Throws as serieOf and numberAt
/// do.
void loadFlowLimits(const QueryResult& rows, const ElementMap& elements, const Interval& interval);

/// Fills the loss series, in percent, over the interval with a fraction.
void fillLoss(const Link& link, double fraction, const Interval& interval);

/// Joins a link of the scenario to its upstream node, whose id stands in column 2, and to its downstream
/// node, in column 3. Throws std::runtime_error "LinkProjectManager::loadGeneralInfo: invalid upStream", or
/// the same with "downStream", where the scenario has no such node.
void wire(const std::shared_ptr<Link>& link, const Row& row, const Scenario& scenario);
