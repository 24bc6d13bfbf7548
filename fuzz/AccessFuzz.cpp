// A damaged Access file gives an error or the rows of each table, of which cells may be changed. The input
// is a Damage of one of the samples.

#include "fuzz/Damage.h"
#include "fuzz/Finding.h"
#include "fuzz/Tables.h"
#include "fuzz/Workplace.h"

#include <array>
#include <cstdint>
#include <string>

using namespace LagomareFuzz;

namespace {

struct Sample {
  explicit Sample(const std::string& name)
      : bytes(contentOf(LAGOMARE_FUZZ_SAMPLES "/" + name)), tables(tablesOf(LAGOMARE_FUZZ_SAMPLES "/" + name)) {}

  std::string bytes;
  Tables tables;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array<Sample, 4> samples{Sample("jet3.mdb"), Sample("types.mdb"), Sample("example-2010.mdb"),
                                             Sample("example-2013.accdb")};
  static const std::string file = workplace() / "damaged.mdb";
  const Damage damage(std::string(reinterpret_cast<const char*>(data), size));
  const Sample& sample = samples[damage.file() % samples.size()];
  writeFile(file, damage.appliedTo(sample.bytes));
  const std::string missing = missingIn(file, sample.tables, damage.changes());
  require(missing.empty(), missing);
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return mutateDamage(data, size, maxSize, seed);
}
