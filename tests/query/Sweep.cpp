#include "tests/query/Sweep.h"

#include "tests/query/QueryTest.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>

namespace LagomareQuery {

namespace {

class TextSink : public AnswerSink {
public:
  void write(std::string_view bytes) override { text.append(bytes); }
  std::string text;
};

/// The answers to `select *` from each table; no value where one is an error.
using Answers = std::vector<std::optional<std::string>>;

Answers answersOf(const std::string& file, const std::vector<std::string>& tables) {
  Answers answers(tables.size());
  std::optional<Database> database;
  for (std::size_t i = 0; i < tables.size(); ++i) {
    try {
      if (!database)
        requireSound(database.emplace(openDatabase(file)));
      TextSink sink;
      writeRows(*database, "SELECT * FROM " + quotedName(tables[i]), sink);
      answers[i] = std::move(sink.text);
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
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (!found[i])
      error = true;
    else if (lines(*found[i]) != lines(*whole[i]))
      return &SweepOutcome::lostRows;
    else if (*found[i] != *whole[i])
      changed = true;
  }
  return changed ? &SweepOutcome::changedCells : error ? &SweepOutcome::errors : &SweepOutcome::same;
}

unsigned setting(const char* name, unsigned otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::stoul(text));
}

} // namespace

SweepOutcome sweep(const std::string& name, const std::string& database, const std::vector<std::size_t>& places,
                   const std::vector<std::string>& tables) {
  writeFile("damaged", database);
  const Answers whole = answersOf("damaged", tables);
  std::mt19937 random(setting("LAGOMARE_SWEEP_SEED", 1));
  std::vector<std::size_t> chosen;
  std::sample(places.begin(), places.end(), std::back_inserter(chosen), setting("LAGOMARE_SWEEP_BYTES", 20), random);
  std::fstream file("damaged", std::ios::in | std::ios::out | std::ios::binary);
  SweepOutcome outcome;
  for (const std::size_t place : chosen) {
    const unsigned before = static_cast<unsigned char>(database[place]);
    const auto any = static_cast<unsigned>(1 + random() % 255);
    for (const unsigned change : {1u, 2u, 4u, 8u, 16u, 32u, 64u, 128u, before ^ 0xFFu, before, any}) {
      if (change == 0)
        continue;
      file.seekp(static_cast<std::streamoff>(place)).put(static_cast<char>(before ^ change)).flush();
      const auto found = judge(whole, answersOf("damaged", tables));
      ++(outcome.*found);
      if (found == &SweepOutcome::lostRows || found == &SweepOutcome::changedCells)
        std::cout << name << (found == &SweepOutcome::lostRows ? ": lost row" : ": changed cell") << ", byte " << place
                  << " from " << before << " to " << (before ^ change) << '\n';
    }
    file.seekp(static_cast<std::streamoff>(place)).put(database[place]).flush();
  }
  std::cout << name << ": " << outcome.errors << " errors, " << outcome.same << " with the same rows, "
            << outcome.changedCells << " with a changed cell, " << outcome.lostRows << " with a lost row\n";
  return outcome;
}

} // namespace LagomareQuery
