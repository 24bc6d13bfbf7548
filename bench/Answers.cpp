#include "bench/Answers.h"

#include <cstdio>
#include <memory>
#include <random>
#include <stdexcept>

namespace LagomareBench {

namespace {

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::unique_ptr<std::FILE, Close> create(const std::string& name) {
  std::unique_ptr<std::FILE, Close> file(std::fopen(name.c_str(), "w"));
  if (!file)
    throw std::runtime_error("cannot write " + name);
  return file;
}

/// Below the limit, to one decimal.
double tenths(std::mt19937& random, unsigned limit) { return static_cast<double>(random() % (limit * 10U)) * 0.1; }

} // namespace

void writeValues(const std::string& name, unsigned ids, unsigned rowsPerId) {
  const auto file = create(name);
  std::mt19937 random(1);
  for (unsigned id = 1; id <= ids; ++id)
    for (unsigned row = 0; row < rowsPerId; ++row)
      std::fprintf(file.get(), "%u %.4f .\n", id, static_cast<double>(random() % 9999999U) * 1e-4 + 1e-4);
}

void writeGeneralRows(const std::string& name, unsigned rows) {
  const auto file = create(name);
  std::mt19937 random(1);
  for (unsigned id = 1; id <= rows; ++id)
    std::fprintf(file.get(), "%u Açude\u00A0do\u00A0Sítio\u00A0%u %.1f %.1f %.1f %.1f %.1f %u .\n", id, id,
                 tenths(random, 999999), tenths(random, 9999999), tenths(random, 50000), tenths(random, 5000),
                 tenths(random, 20000), id % 2);
}

} // namespace LagomareBench
