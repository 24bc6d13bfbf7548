#include "tests/query/QueryTest.h"
#include "tests/query/Sweep.h"
#include "tools/query/access/AccessCatalog.h"
#include "tools/query/access/AccessScan.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace LagomareQuery {
namespace {

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
        for (std::size_t slot = 0; slot < slotCount(page_, file_.format()); ++slot)
          markCell(number, rowBytes(page_, file_.format(), slot));
    }
    for (const AccessObject& object : readCatalog(file_))
      if (!object.isLinked && !object.isSystem)
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
      for (std::size_t slot = 0; slot < slotCount(page_, file_.format()); ++slot)
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

using AccessSweepTest = QueryTest;

TEST_F(AccessSweepTest, OneDamagedByteOutsideTheCellsLosesNoRow) {
  for (const char* name : {"types.mdb", "jet3.mdb", "example-2010.mdb", "example-2013.accdb"}) {
    const std::string sample = std::string(SAMPLES) + "/" + name;
    const Structure structure(sample);
    const SweepOutcome outcome = sweep(name, contentOf(sample), structure.places(), structure.tables());
    EXPECT_GT(outcome.errors, 0u) << name;
    EXPECT_EQ(outcome.lostRows, 0u) << name;
  }
}

} // namespace
} // namespace LagomareQuery
