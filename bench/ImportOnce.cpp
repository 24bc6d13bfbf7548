// Imports a project once, in one of three ways, and says what came out and what it cost: a digest of the scenario, the
// processor seconds, those of the processes it started included, and its own greatest memory in bytes.

#include "bench/Child.h"
#include "bench/Digest.h"
#include "bench/plain/InProcess.h"
#include "bench/plain/PlainChannel.h"
#include "loader/LagomareProjectLoader.h"

#include <iostream>
#include <sys/resource.h>
#include <unistd.h>

namespace {

std::int64_t peakBytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return std::int64_t{usage.ru_maxrss} * 1024;
}

template <typename Scenario>
int report(const Scenario& scenario) {
  const double seconds = LagomareBench::processorSeconds();
  const std::int64_t peak = peakBytes();
  std::cout << LagomareBench::Digest::of(scenario) << ' ' << seconds << ' ' << peak << std::endl;
  _exit(0); // the scenario's end is not what is measured
}

int import(const std::string& way, const std::string& executable, const std::string& database) {
  if (way == "ours")
    return report(*LagomareProjectLoader::load2013(executable, database, {}).scenario);
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
