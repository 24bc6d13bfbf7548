#pragma once

#include "access/QueryResult.h"
#include "access/ValueResult.h"

#include <string>

class TeluCoreProgressBar;

// What a loading step does besides filling elements: it asks the query channel, and it counts itself.

[[nodiscard]] QueryResult ask(const std::string& sql, bool flag);

/// For a query of an id and one value, with as many rows as there are dates.
[[nodiscard]] ValueResult askValues(const std::string& sql, bool flag);

/// Ends a loading step: one step of progress. Throws TeluCoreProgressBar::ProgressCancelException where the host
/// asks to stop.
void finishStep(TeluCoreProgressBar& bar);
