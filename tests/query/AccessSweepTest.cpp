#include "tests/query/QueryTest.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include "tools/query/access/AccessCatalog.h"
#include "tools/query/access/AccessScan.h"
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
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
        database = openDatabase(file);
      TextSink sink;
      writeRows(*database, "SELECT * FROM " + quotedName(tables[i]), sink);
      answers[i] = std::move(sink.text);
    } catch (const QueryError&) {
      if (!database)
        break;
    }
  }
  return answers;
}

/// Which bytes of a sample a single fault can change the reading of without being in a cell.
class Structure {
public:
  explicit Structure(const std::string& sample) : file_(sample) {
    const std::size_t pageSize = file_.format().pageSize;
    isCell_.resize(file_.pageCount() * pageSize);
    for (std::uint32_t number = 0; number < file_.pageCount(); ++number) {
      file_.read(number, page_);
      if (number != 0 && !isRead())
        mark(number, 0, pageSize);
      else if (page_.is(AccessPage::Kind::data) && page_.bytes().u32(4) == longTexts)
        for (std::size_t slot = 0; slot < rowCount(page_, file_.format()); ++slot)
          markCell(number, rowBytes(page_, file_.format(), slot));
    }
    for (const AccessObject& object : readCatalog(file_))
      if (!object.linked && !object.system)
        addTable(readTable(file_, object.name, object.definitionPage));
  }
  [[nodiscard]] const std::vector<std::string>& tables() const { return tables_; }
  [[nodiscard]] std::vector<std::size_t> places() const {
    std::vector<std::size_t> all;
    for (std::size_t place = 0; place < isCell_.size(); ++place)
      if (!isCell_[place])
        all.push_back(place);
    return all;
  }

private:
  static constexpr std::uint32_t longTexts = 'L' | 'V' << 8 | 'A' << 16 | 'L' << 24;

  /// Index pages are not.
  [[nodiscard]] bool isRead() const {
    return page_.is(AccessPage::Kind::data) || page_.is(AccessPage::Kind::tableDefinition) ||
           page_.is(AccessPage::Kind::usageMap);
  }
  void addTable(const AccessTable& table) {
    tables_.push_back(table.name);
    for (const std::uint32_t number : readDataPages(file_, table)) {
      file_.read(number, page_);
      for (std::size_t slot = 0; slot < rowCount(page_, file_.format()); ++slot)
        if (slotOf(page_, file_.format(), slot) == AccessSlot::row)
          addCells(table, number, rowBytes(page_, file_.format(), slot));
    }
  }
  void addCells(const AccessTable& table, std::uint32_t number, AccessBytes row) {
    const AccessRecord record(row, table, file_.format());
    for (const AccessColumn& column : table.columns)
      if (!record.isNull(column))
        markCell(number, record.cell(column));
  }
  void markCell(std::uint32_t number, AccessBytes cell) {
    mark(number, static_cast<std::size_t>(cell.data() - page_.bytes().data()), cell.size());
  }
  void mark(std::uint32_t number, std::size_t begin, std::size_t size) {
    std::fill_n(isCell_.begin() + static_cast<std::ptrdiff_t>(number * file_.format().pageSize + begin), size, true);
  }

  AccessFile file_;
  AccessPage page_;
  std::vector<std::string> tables_;
  std::vector<bool> isCell_;
};

struct Outcome {
  unsigned tries = 0, errors = 0, same = 0, changedCells = 0, lostRows = 0;
};

std::ptrdiff_t lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

void count(const Answers& whole, const Answers& found, Outcome& outcome) {
  ++outcome.tries;
  bool error = false, changed = false, lost = false;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (!found[i])
      error = true;
    else if (lines(*found[i]) != lines(*whole[i]))
      lost = true;
    else if (*found[i] != *whole[i])
      changed = true;
  }
  ++(lost ? outcome.lostRows : changed ? outcome.changedCells : error ? outcome.errors : outcome.same);
}

class AccessSweepTest : public QueryTest, public testing::WithParamInterface<const char*> {};

/// Each of some bytes outside the cells is changed by itself. LAGOMARE_SWEEP_BYTES says how many of each sample (all,
/// if it has fewer), LAGOMARE_SWEEP_SEED which.
TEST_P(AccessSweepTest, OneDamagedByteOutsideTheCellsLosesNoRow) {
  const auto setting = [](const char* name, unsigned otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : static_cast<unsigned>(std::stoul(text));
  };
  const std::string sample = std::string(SAMPLES) + "/" + GetParam();
  const Structure structure(sample);
  const std::string bytes = contentOf(sample);
  writeFile("damaged", bytes);
  const Answers whole = answersOf("damaged", structure.tables());
  std::mt19937 random(setting("LAGOMARE_SWEEP_SEED", 1));
  const std::vector<std::size_t> places = structure.places();
  std::vector<std::size_t> chosen;
  std::sample(places.begin(), places.end(), std::back_inserter(chosen), setting("LAGOMARE_SWEEP_BYTES", 20), random);
  Outcome outcome;
  std::fstream file("damaged", std::ios::in | std::ios::out | std::ios::binary);
  const auto put = [&](std::size_t place, char byte) {
    file.seekp(static_cast<std::streamoff>(place)).put(byte).flush();
  };
  for (const std::size_t place : chosen) {
    const auto before = static_cast<unsigned char>(bytes[place]);
    const auto any = static_cast<unsigned>(1 + random() % 255);
    for (unsigned change : {1u, 2u, 4u, 8u, 16u, 32u, 64u, 128u, before ^ 0xFFu, before ^ 0u, any}) {
      if (change == 0)
        continue;
      put(place, static_cast<char>(before ^ change));
      const Outcome old = outcome;
      count(whole, answersOf("damaged", structure.tables()), outcome);
      if (outcome.lostRows != old.lostRows || outcome.changedCells != old.changedCells)
        std::cout << (outcome.lostRows != old.lostRows ? "lost row" : "changed cell") << ": byte " << place << " from "
                  << before * 1u << " to " << (before ^ change) << '\n';
    }
    put(place, bytes[place]);
  }
  std::cout << GetParam() << ": " << outcome.tries << " tries, " << outcome.errors << " errors, " << outcome.same
            << " with the same rows, " << outcome.changedCells << " with a changed cell, " << outcome.lostRows
            << " with a lost row\n";
  EXPECT_GT(outcome.tries, 0u);
  EXPECT_EQ(outcome.lostRows, 0u);
}

INSTANTIATE_TEST_SUITE_P(Samples, AccessSweepTest,
                         testing::Values("types.mdb", "jet3.mdb", "example-2010.mdb", "example-2013.accdb"),
                         [](const auto& tried) {
                           std::string name = tried.param;
                           std::replace_if(
                               name.begin(), name.end(), [](char c) { return c == '.' || c == '-'; }, '_');
                           return name;
                         });

} // namespace
} // namespace LagomareQuery
