#include "access/Answer.h"
#include "access/QueryResult.h"
#include "bench/Answers.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Table.h"
#include "bench/plain/PlainRows.h"

#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace LagomareBench {

using namespace Lagomare;

namespace {

const std::string valuesFile = "values.txt";
const std::string generalFile = "general.txt";
constexpr unsigned rowsPerId = 1200;

QueryResult ours(const std::string& file) {
  std::ifstream answer(file, std::ios::binary);
  return parseRows(answer);
}

/// The fields of an answer, and the number of the first one, made before the clock starts.
struct ReadyRow {
  std::uint32_t key;
  Row fields;
};
std::vector<ReadyRow> readyRows(const std::string& file) {
  std::vector<ReadyRow> ready;
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) {
    Row fields = Plain::split(line, ' ');
    fields.pop_back();
    ready.push_back({static_cast<std::uint32_t>(std::stoul(fields.front())), fields});
  }
  return ready;
}

/// The same map with nothing left to do but to build it.
QueryResult build(const std::vector<ReadyRow>& ready) {
  QueryResult result;
  for (const auto& row : ready)
    result.try_emplace(result.end(), row.key)->second.emplace_back(row.fields);
  return result;
}

void requireEqual(const std::string& file) {
  static_cast<void>(inChild([&file] {
    const auto plain = Plain::readRows(file);
    if (ours(file) != plain || build(readyRows(file)) != plain)
      throw std::runtime_error("the parsers disagree on " + file);
    return 0.0;
  }));
}

/// The time of the last of several queries in one process.
template <typename Parse>
double secondsOfLast(int queries, Parse parse) {
  for (int query = 1; query < queries; ++query)
    static_cast<void>(parse());
  return secondsOf(parse);
}

Work& addParsing(Table& table, const std::string& name, const std::string& file, double rows, int queries) {
  Work& work = table.add(name, nanoseconds);
  work.setCheck([file] { requireEqual(file); });
  work.add("plain", rows,
           [=] { return inChild([&] { return secondsOfLast(queries, [&] { return Plain::readRows(file); }); }); });
  work.add("ours", rows, [=] { return inChild([&] { return secondsOfLast(queries, [&] { return ours(file); }); }); });
  work.add("floor", rows, [=] {
    return inChild([&] {
      const auto ready = readyRows(file);
      return secondsOfLast(queries, [&] { return build(ready); });
    });
  });
  return work;
}

/// Instructions of a program that parses such a file.
double instructions(const Setting& setting, const char* parser, unsigned ids) {
  const std::string file = "counted.txt";
  const std::string log = "callgrind.log";
  writeValues(file, ids, rowsPerId);
  runCommand({"valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
              setting.programs / "lagomare-bench-rows", parser, file},
             log);
  std::ifstream in(log);
  const std::string label = "Collected : ";
  for (std::string line; std::getline(in, line);)
    if (const auto found = line.find(label); found != std::string::npos)
      return std::stod(line.substr(found + label.size()));
  throw std::runtime_error("no count of instructions in " + log);
}

/// The difference of two sizes leaves out what a program does besides.
void addInstructions(Table& table, const Setting& setting) {
  constexpr unsigned few = 10;
  constexpr unsigned many = 50;
  Work& work = table.add("instructions per row of the same (callgrind)", plainCount);
  for (const char* parser : {"plain", "ours"})
    work.add(parser, (many - few) * rowsPerId, [&setting, parser, counted = 0.0]() mutable {
      if (counted == 0.0) // the same in every round
        counted = instructions(setting, parser, many) - instructions(setting, parser, few);
      return counted;
    });
  work.aimAtMost("ours", "", 600);
}

} // namespace

void addParserBenches(Table& table, const Setting& setting) {
  constexpr unsigned ids = 500;
  constexpr unsigned generalRows = 100000;
  writeValues(valuesFile, ids, rowsPerId);
  writeGeneralRows(generalFile, generalRows);
  addParsing(table, "answer file → `QueryResult`, 600,000 two-field rows, first query of a process", valuesFile,
             ids * rowsPerId, 1)
      .aimAtLeast("plain", "ours", 2.5)
      .aimAtMost("ours", "floor", 1.4);
  addParsing(table, "the same, fifth query", valuesFile, ids * rowsPerId, 5)
      .aimAtLeast("plain", "ours", 3.5)
      .aimAtMost("ours", "floor", 1.4);
  addInstructions(table, setting);
  addParsing(table, "answer file → `QueryResult`, 100,000 general-information rows, first query", generalFile,
             generalRows, 1)
      .aimAtLeast("plain", "ours", 1.9);
  addParsing(table, "100,000 general-information rows, fifth query", generalFile, generalRows, 5)
      .aimAtLeast("plain", "ours", 1.9);
}

} // namespace LagomareBench
