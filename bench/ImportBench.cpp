#include "bench/Basin.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Table.h"

#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace LagomareBench {

namespace {

const std::string database = "basin.db";

struct Outcome {
  std::uint64_t digest;
  double processorSeconds;
  double clockSeconds;
  double peakBytes;
};

Outcome importOnce(const Setting& setting, const std::string& way) {
  const std::string output = "import.txt";
  runCommand({setting.programs / "lagomare-bench-import", way, setting.programs / "lagomare-query", database}, output);
  Outcome outcome{};
  std::ifstream(output) >> outcome.digest >> outcome.processorSeconds >> outcome.clockSeconds >> outcome.peakBytes;
  return outcome;
}

void requireEqual(const Setting& setting) {
  const auto digest = importOnce(setting, "ours").digest;
  for (const char* way : {"plain", "in-process"})
    if (importOnce(setting, way).digest != digest)
      throw std::runtime_error(std::string(way) + " imports another scenario");
}

double clockSeconds(const std::vector<std::string>& command) { return runCommand(command, "log.txt").clockSeconds; }

/// What a user waits for.
void addCommands(Table& table, const Setting& setting, Work& clock) {
  clock.add("ours", 1, [&setting] { return clockSeconds(importCommand(setting, database)); });
  clock.aimAtMost("ours", "floor", 0.9);
  Work& check =
      table.add("`lagomare check` of the same, wall clock (floor: `lagomare import --no-check`)", wholeSeconds);
  check.add("ours", 1, [&setting] { return clockSeconds(checkCommand(setting, database)); });
  check.add("floor", 1, [&setting] { return clockSeconds(importCommand(setting, database)); });
  if (setting.isLarge)
    check.aimAtMost("ours", "floor", 0.6);
}

} // namespace

void addImportBenches(Table& table, const Setting& setting) {
  const BasinSize size = setting.isLarge ? BasinSize{5000, 100, 3} : BasinSize{1250, 60, 3};
  // In a process of its own: the memory of this one would be counted as that of those that it starts.
  static_cast<void>(inChild([&] { return writeBasin(database, size), 0.0; }));
  const std::string basin = std::to_string(size.nodes) + " nodes × " + std::to_string(size.months()) + " months × " +
                            std::to_string(size.states) + " states, " +
                            std::to_string(static_cast<long>(size.rows() / 1000.0)) + " thousand rows";
  Work& time = table.add("whole import, " + basin + ", processor time (floor: read in the process)", wholeSeconds);
  Work& clock = table.add("the same, wall clock of `lagomare import --no-check --quiet`", wholeSeconds);
  Work& memory = table.add("peak memory of the same, of both processes together", megabytes);
  time.setCheck([&setting] { requireEqual(setting); });
  for (const auto& [contender, way] :
       {std::pair("plain", "plain"), std::pair("ours", "ours"), std::pair("floor", "in-process")})
    time.add(contender, 1, [&setting, &memory, &clock, name = contender, mode = way] {
      const Outcome outcome = importOnce(setting, mode);
      if (std::string_view(name) != "plain") // a process that starts others late passes its own peak on to them
        memory.record(name, outcome.peakBytes);
      if (std::string_view(name) == "floor")
        clock.record(name, outcome.clockSeconds);
      return outcome.processorSeconds;
    });
  time.aimAtLeast("plain", "ours", 2.4).aimAtMost("ours", "floor", 1.7);
  addCommands(table, setting, clock);
  if (setting.isLarge)
    memory.aimAtMost("ours", "", 300);
}

} // namespace LagomareBench
