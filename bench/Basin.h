#pragma once

#include <string>

namespace LagomareBench {

/// How large a made-up basin is. Of its nodes, every fifth is a reservoir, two of five are demands and two junctions;
/// each node but the last flows to the next one.
struct BasinSize {
  unsigned nodes;
  unsigned years;
  unsigned states;

  [[nodiscard]] unsigned months() const { return years * 12; }
  /// Rows that an import reads from the tables of series: the natural flows once for each kind of node, the rest once
  /// for each state and once more for the first.
  [[nodiscard]] double rows() const { return months() * (nodes * 3.0 + nodes * 0.6 * (states + 1)); }
};

/// Writes the basin as a SQLite database of the 2013 dialect, the same at every run.
void writeBasin(const std::string& file, const BasinSize& size);

} // namespace LagomareBench
