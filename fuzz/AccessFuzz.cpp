// A damaged Access file gives an error or as many rows of each table as the undamaged one; cells may change. The input
// is the number of a sample and what is damaged in it, as Files.h tells.

#include "fuzz/Files.h"
#include "fuzz/Tables.h"

#include <array>
#include <sstream>

using namespace LagomareFuzz;

namespace {

struct Sample {
  explicit Sample(const std::string& name)
      : bytes(contentOf(LAGOMARE_FUZZ_SAMPLES "/" + name)),
        tables(tablesOf(LagomareQuery::openDatabase(LAGOMARE_FUZZ_SAMPLES "/" + name))) {}

  std::string bytes;
  Tables tables;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array<Sample, 4> samples{Sample("jet3.mdb"), Sample("types.mdb"), Sample("example-2010.mdb"),
                                             Sample("example-2013.accdb")};
  static const std::string file = workplace() / "damaged.mdb";
  std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
  std::uint32_t number = 0;
  text >> number;
  const Sample& sample = samples[number % samples.size()];
  writeFile(file, damaged(sample.bytes, text));
  requireErrorOrAllRows(file, sample.tables);
  return 0;
}
