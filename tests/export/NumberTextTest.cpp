#include "tools/export/NumberText.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace LagomareTools;

TEST(NumberTextTest, NumbersAreShortAndReadBack) {
  const auto text = [](double value) { return std::string(NumberText(value).view()); };
  EXPECT_EQ(text(0.1), "0.1");
  EXPECT_EQ(text(100000), "100000");
  EXPECT_EQ(text(-0.00001), "-0.00001");
  EXPECT_EQ(text(1e15), "1e+15");
  for (const double value : {1.0 / 3, 5e-324, std::numeric_limits<double>::max(), 123456789012345.67, -2e-5 / 3})
    EXPECT_EQ(std::strtod(text(value).c_str(), nullptr), value);
}
