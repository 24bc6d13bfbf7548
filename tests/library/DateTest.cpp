#include "model/Date.h"

#include <gmock/gmock.h>
#include <stdexcept>
#include <string>
#include <vector>

using namespace testing;

namespace {

std::string read(const std::string& text) {
  const Date date = Date::fromString(text, "%d/%m/%Y");
  return std::to_string(date.getDay()) + '/' + std::to_string(date.getMonth()) + '/' + std::to_string(date.getYear());
}

} // namespace

TEST(DateTest, WalksTheCalendar) {
  Date day(1899, 12, 31);
  std::vector<Date> days;
  for (int i = 0; i < 36891; ++i, day += 1)
    days.push_back(day);
  EXPECT_EQ(day, Date(2001, 1, 1)) << "25 leap days: 1900 has none";
  EXPECT_EQ(days.front() += 36891, day);
  for (auto before = days.rbegin(); before + 1 != days.rend(); ++before)
    ASSERT_EQ(--day, *before);
}

TEST(DateTest, StaysWithinTheYears1To9999) {
  Date last(9999, 12, 31);
  EXPECT_THROW(last += 1, std::invalid_argument);
  EXPECT_THROW(last.setYear(10000), std::invalid_argument);
  EXPECT_EQ(last, Date(9999, 12, 31));
  Date first;
  EXPECT_THROW(--first, std::invalid_argument);
  EXPECT_EQ(first, Date(1, 1, 1));
  Date leapDay(2000, 2, 29);
  leapDay.setYear(2001);
  EXPECT_EQ(leapDay, Date(2001, 2, 28));
  EXPECT_THROW(Date(1900, 2, 29), std::invalid_argument);
  EXPECT_THROW(Date(2000, 0, 1), std::invalid_argument);
}

TEST(DateTest, IsReadFromTextOfTheFormatAlone) {
  EXPECT_EQ(read("29/02/2000"), "29/2/2000");
  EXPECT_EQ(read("1/2/3"), "1/2/3");
  for (const char* text : {"", "1/1", "1/1/", "1/1/2000 ", " 1/1/2000", "01-01-2000", "001/1/2000", "1/1/20000",
                           "a/1/2000", "-1/1/2000", "31/4/2000", "0/1/2000", "1/13/2000", "1/1/0"})
    EXPECT_THROW(read(text), std::invalid_argument) << text;
}
