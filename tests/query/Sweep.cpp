#include "tests/query/Sweep.h"

#include "tests/query/QueryTest.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string_view>
#include <utility>

namespace LagomareQuery {

namespace {

constexpr std::size_t sweptPageSize = 2048; // or a part of a page

class TextSink : public AnswerSink {
public:
  void write(std::string_view bytes) override { text.append(bytes); }
  std::string text;
};

/// The answers to `select *` from each table, by the table's name; no value where one is an error.
using Answers = std::map<std::string, std::optional<std::string>>;

Answers answersOf(const std::string& file, const std::vector<std::string>& tables) {
  Answers answers;
  std::optional<Database> database;
  for (const std::string& table : tables) {
    try {
      auto& answer = answers[table];
      if (!database)
        requireSound(database.emplace(openDatabase(file)));
      TextSink sink;
      writeRows(*database, "SELECT * FROM " + quotedName(table), sink);
      answer = std::move(sink.text);
    } catch (const QueryError&) {
      // no value
    }
  }
  return answers;
}

std::ptrdiff_t lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

/// The member of the outcome that counts what was found.
unsigned SweepOutcome::*judge(const Answers& whole, const Answers& found) {
  bool error = false, changed = false;
  for (const auto& [table, answer] : found) {
    const std::string& expected = *whole.at(table);
    if (!answer)
      error = true;
    else if (lines(*answer) != lines(expected))
      return &SweepOutcome::lostRows;
    else if (*answer != expected)
      changed = true;
  }
  return changed ? &SweepOutcome::changedCells : error ? &SweepOutcome::errors : &SweepOutcome::same;
}

unsigned setting(const char* name, unsigned otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::stoul(text));
}

/// The file with one damage at a time.
class DamagedFile {
public:
  explicit DamagedFile(const std::string& sound) : sound_(sound) {
    writeFile(name, sound);
    file_.open(name, std::ios::in | std::ios::out | std::ios::binary);
  }
  void put(std::size_t place, const std::string& bytes) {
    file_.seekp(static_cast<std::streamoff>(place)).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file_.flush();
  }
  void mend(std::size_t place, std::size_t size) { put(place, sound_.substr(place, size)); }

  static constexpr const char* name = "damaged";

private:
  const std::string& sound_;
  std::fstream file_;
};

/// The tables whose answers depend on a page: a page of other bytes changes them.
std::vector<std::string> tablesThatRead(std::size_t page, DamagedFile& file, const Answers& whole,
                                        const std::vector<std::string>& tables) {
  std::set<std::string> found;
  for (const char byte : {'\0', '\xFF'}) {
    file.put(page * sweptPageSize, std::string(sweptPageSize, byte));
    for (const auto& [table, answer] : answersOf(DamagedFile::name, tables))
      if (answer != whole.at(table))
        found.insert(table);
  }
  file.mend(page * sweptPageSize, sweptPageSize);
  return {found.begin(), found.end()};
}

} // namespace

SweepOutcome sweep(const std::string& name, const std::string& database, const std::vector<std::size_t>& places,
                   const std::vector<std::string>& tables) {
  DamagedFile file(database);
  const Answers whole = answersOf(DamagedFile::name, tables);
  std::mt19937 random(setting("LAGOMARE_SWEEP_SEED", 1));
  std::vector<std::size_t> chosen;
  std::sample(places.begin(), places.end(), std::back_inserter(chosen), setting("LAGOMARE_SWEEP_BYTES", 20), random);
  SweepOutcome outcome;
  std::optional<std::size_t> page;
  std::vector<std::string> readers;
  for (const std::size_t place : chosen) {
    if (page != place / sweptPageSize) {
      page = place / sweptPageSize;
      readers = tablesThatRead(*page, file, whole, tables);
    }
    const unsigned before = static_cast<unsigned char>(database[place]);
    const auto any = static_cast<unsigned>(1 + random() % 255);
    for (const unsigned change : {1u, 2u, 4u, 8u, 16u, 32u, 64u, 128u, before ^ 0xFFu, before, any}) {
      if (change == 0)
        continue;
      file.put(place, {static_cast<char>(before ^ change)});
      const auto found = judge(whole, answersOf(DamagedFile::name, readers));
      ++(outcome.*found);
      if (found == &SweepOutcome::lostRows || found == &SweepOutcome::changedCells)
        std::cout << name << (found == &SweepOutcome::lostRows ? ": lost row" : ": changed cell") << ", byte " << place
                  << " from " << before << " to " << (before ^ change) << '\n';
    }
    file.mend(place, 1);
  }
  std::cout << name << ": " << outcome.errors << " errors, " << outcome.same << " with the same rows, "
            << outcome.changedCells << " with a changed cell, " << outcome.lostRows << " with a lost row\n";
  return outcome;
}

} // namespace LagomareQuery
