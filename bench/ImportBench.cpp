#include "bench/Basin.h"
#include "bench/Benches.h"
#include "bench/Child.h"

#include <fstream>
#include <stdexcept>

namespace LagomareBench {

namespace {

struct Outcome {
  std::uint64_t digest;
  double seconds;
  double peakBytes;
};

Outcome importOnce(const Setting& setting, const std::string& way, const std::string& database) {
  const std::string output = "import.txt";
  runCommand({setting.programs / "lagomare-bench-import", way, setting.programs / "lagomare-query", database}, output);
  Outcome outcome{};
  std::ifstream(output) >> outcome.digest >> outcome.seconds >> outcome.peakBytes;
  return outcome;
}

void requireEqual(const Setting& setting, const std::string& database) {
  const auto digest = importOnce(setting, "ours", database).digest;
  for (const char* way : {"plain", "in-process"})
    if (importOnce(setting, way, database).digest != digest)
      throw std::runtime_error(std::string(way) + " imports another scenario");
}

} // namespace

void addImportBenches(Table& table, const Setting& setting) {
  const std::string database = "basin.db";
  const BasinSize size = setting.isLarge ? BasinSize{5000, 100, 3} : BasinSize{1250, 60, 3};
  // In a process of its own: the memory of this one would be counted as that of those that it starts.
  static_cast<void>(inChild([&] { return writeBasin(database, size), 0.0; }));
  const std::string basin = std::to_string(size.nodes) + " nodes × " + std::to_string(size.months()) + " months × " +
                            std::to_string(size.states) + " states, " +
                            std::to_string(static_cast<long>(size.rows() / 1000.0)) + " thousand rows";
  Work& time = table.add("whole import, " + basin + " (floor: read in the process)", wholeSeconds);
  Work& memory = table.add("peak memory of the same", megabytes);
  time.setCheck([&setting, database] { requireEqual(setting, database); });
  for (const auto& [contender, way] :
       {std::pair("plain", "plain"), std::pair("ours", "ours"), std::pair("floor", "in-process")})
    time.add(contender, 1, [&setting, &memory, contender = contender, way = way, database] {
      const Outcome outcome = importOnce(setting, way, database);
      memory.record(contender, outcome.peakBytes);
      return outcome.seconds;
    });
  time.aimAtLeast("plain", "ours", 2.4).aimAtMost("ours", "floor", 1.7);
  if (setting.isLarge)
    memory.aimAtMost("ours", "", 300);
}

} // namespace LagomareBench
