#include "model/Serie.h"

#include <gmock/gmock.h>
#include <vector>

using namespace testing;

namespace {

const Interval year2000(Date(2000, 1, 1), Date(2000, 12, 1), MonthlyType());

class SerieTest : public Test {
protected:
  [[nodiscard]] double at(unsigned year, unsigned char month) const { return serie.getValue(Date(year, month, 1)); }

  Serie serie{Interval(), WaterDemand(), M3S()};
};

} // namespace

TEST_F(SerieTest, KeepsWhatWasWrittenAnywhereAndReadsZeroElsewhere) {
  EXPECT_EQ(at(2000, 6), 0.0);
  serie.setValue(Date(2000, 6, 1), 6.0);
  serie.setValue(Date(1999, 1, 1), 99.0);
  serie.setValue(Date(2003, 1, 1), 3.0);
  serie.setInterval(year2000);
  EXPECT_EQ(at(2000, 6), 6.0);
  EXPECT_EQ(serie.getValue(Date(2000, 6, 30)), 6.0) << "a date stands for its month";
  EXPECT_EQ(at(1999, 1), 99.0);
  EXPECT_EQ(at(2003, 1), 3.0);
  EXPECT_THAT((std::vector{at(1, 1), at(1998, 12), at(2000, 5), at(2003, 2), at(9999, 12)}), Each(0.0));
}

TEST_F(SerieTest, IsFilledOverAnInterval) {
  serie.fill(1.0);
  EXPECT_EQ(at(1, 1), 0.0) << "there is no interval to fill";
  serie.fill(2.0, year2000);
  EXPECT_EQ(serie.getInterval().getEnd(), Date(2000, 12, 1)) << "a series without an interval takes it";
  serie.fill(3.0, Interval(Date(1999, 12, 1), Date(2000, 1, 1), MonthlyType()));
  serie.fill(4.0, Interval());
  EXPECT_THAT((std::vector{at(1999, 11), at(1999, 12), at(2000, 1), at(2000, 2), at(2000, 12), at(2001, 1)}),
              ElementsAre(0, 3, 3, 2, 2, 0));
  EXPECT_EQ(serie.getInterval().getBegin(), Date(2000, 1, 1));
  serie.fill(6.0, Interval(Date(1999, 12, 1), Date(2001, 1, 1), MonthlyType()));
  serie.setValue(Date(2000, 3, 1), 7.0);
  EXPECT_THAT((std::vector{at(1999, 11), at(1999, 12), at(2000, 2), at(2000, 3), at(2001, 1), at(2001, 2)}),
              ElementsAre(0, 6, 6, 7, 6, 0));
  serie.fill(3.0, Interval(Date(1999, 12, 1), Date(2001, 1, 1), MonthlyType()));
  serie.fill(5.0);
  EXPECT_EQ(at(1999, 12), 3.0);
  EXPECT_EQ(at(2000, 12), 5.0);
}
