#pragma once

#include <string>

namespace LagomareBench {

// Answer files as the query executable writes them, the same at every run.

/// Rows of an id and a value with four decimals; each id in one run of so many rows.
void writeValues(const std::string& file, unsigned ids, unsigned rowsPerId);

/// Rows of general information: an id of its own, a name, two coordinates, three volumes, a flag.
void writeGeneralRows(const std::string& file, unsigned rows);

} // namespace LagomareBench
