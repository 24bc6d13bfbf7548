// Runs the benches and prints their table. What it writes stands in a directory of its own, which it removes.

#include "bench/Benches.h"
#include "bench/Table.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace LagomareBench;

/// The working directory while the benches run.
class Workplace {
public:
  Workplace() {
    std::string name = fs::temp_directory_path() / "lagomare-bench-XXXXXX";
    if (mkdtemp(name.data()) == nullptr)
      throw std::runtime_error("cannot make a directory in " + fs::temp_directory_path().string());
    path_ = name;
    fs::current_path(path_);
  }
  ~Workplace() {
    fs::current_path("/");
    fs::remove_all(path_);
  }
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

private:
  fs::path path_;
};

/// Takes a word of ours out of the call; the rest is Google Benchmark's.
bool takeWord(std::vector<char*>& words, std::string_view word) {
  const auto found = std::find_if(words.begin() + 1, words.end(), [word](const char* other) { return word == other; });
  if (found == words.end())
    return false;
  words.erase(found);
  return true;
}

int run(std::vector<char*> words) {
  constexpr int rounds = 7;
  const fs::path program = fs::canonical(words.front());
  const Setting setting{program.parent_path(), LAGOMARE_BENCH_SAMPLES, LAGOMARE_BENCH_EXAMPLES,
                        takeWord(words, "--large")};
  int count = static_cast<int>(words.size());
  benchmark::Initialize(&count, words.data());
  if (benchmark::ReportUnrecognizedArguments(count, words.data()))
    return 2;
  const Workplace workplace;
  Table works({"plain", "ours", "floor"});
  Table growths({"1×", "10×", "100×"});
  addParserBenches(works, setting);
  addNumberBenches(works);
  addSeriesBenches(works);
  addQueryBenches(works, setting);
  addAccessBenches(works, setting);
  addExampleBenches(works, setting);
  addImportBenches(works, setting);
  addGrowthBenches(growths);
  const bool succeeded = runRounds(rounds);
  works.print(std::cout);
  growths.print(std::cout);
  return succeeded ? 0 : 1;
}

} // namespace

std::vector<std::string> LagomareBench::importCommand(const Setting& setting, const std::string& project) {
  return {setting.programs / "lagomare", "import", "--no-check", "--quiet", project};
}

std::vector<std::string> LagomareBench::checkCommand(const Setting& setting, const std::string& project) {
  return {setting.programs / "lagomare", "check", project};
}

int main(int count, char** words) {
  try {
    return run({words, words + count});
  } catch (const std::exception& error) {
    std::cerr << "lagomare-bench: " << error.what() << '\n';
    return 1;
  }
}
