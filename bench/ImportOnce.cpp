// Imports a project once, in one of three ways, and says what came out and what it cost: a digest of the scenario, the
// processor seconds, those of the processes it started included, the seconds on the clock, and the greatest memory in
// bytes: its own and that of the largest process it started, together.

#include "bench/Child.h"
#include "bench/Digest.h"
#include "bench/plain/InProcess.h"
#include "bench/plain/PlainChannel.h"
#include "bench/plain/PlainImport.h"
#include "model/Scenario.h"
#include "tools/project/Import.h"
#include "tools/project/Project.h"

#include <chrono>
#include <cstdint>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

namespace {

const auto start = std::chrono::steady_clock::now();

std::int64_t peakBytes() {
  std::int64_t kilobytes = 0;
  for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
    rusage usage{};
    getrusage(who, &usage);
    kilobytes += usage.ru_maxrss;
  }
  return kilobytes * 1024;
}

template <typename Scenario>
int report(const Scenario& scenario) {
  const double processor = LagomareBench::processorSeconds();
  const std::chrono::duration<double> clock = std::chrono::steady_clock::now() - start;
  const std::int64_t peak = peakBytes();
  std::cout << LagomareBench::Digest::of(scenario) << ' ' << processor << ' ' << clock.count() << ' ' << peak
            << std::endl;
  _exit(0); // the scenario's end is not what is measured
}

/// As the command line does; the query executable has ended when this returns.
std::shared_ptr<Scenario> importByTools(const std::string& database) {
  const LagomareTools::Project project({database, {}, {}, {}});
  return importScenario(project, [](long, long) {}).result.scenario;
}

int import(const std::string& way, const std::string& executable, const std::string& database) {
  if (way == "ours")
    return report(*importByTools(database));
  if (way == "plain") {
    Plain::Channel channel(executable, database);
    return report(Plain::Import(channel).run());
  }
  if (way == "in-process") {
    Plain::InProcess reader(database);
    return report(Plain::Import(reader).run());
  }
  std::cerr << "there is no way \"" << way << "\"\n";
  return 2;
}

} // namespace

int main(int count, char** words) {
  if (count != 4) {
    std::cerr << "usage: lagomare-bench-import plain|ours|in-process EXECUTABLE DATABASE\n";
    return 2;
  }
  try {
    return import(words[1], words[2], words[3]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
