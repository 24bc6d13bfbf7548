#include "model/NumericalUtils.h"
#include "model/TeluCoreProgressBar.h"
#include "model/TeluUtmDegreeConversion.h"

#include <gmock/gmock.h>
#include <stdexcept>
#include <utility>
#include <vector>

#include <cmath>

using namespace testing;

TEST(TeluUtmDegreeConversionTest, AgreesWithAnIndependentReference) {
  struct Point {
    double easting, northing, longitude, latitude;
  };
  const auto expectDegrees = [](const std::vector<Point>& points) {
    for (const auto& point : points) {
      const auto [longitude, latitude] = TeluUtmDegreeConversion::utmToDegree(point.easting, point.northing);
      EXPECT_NEAR(longitude, point.longitude, 1e-9);
      EXPECT_NEAR(latitude, point.latitude, 1e-9);
    }
  };
  // Computed with cs2cs of PROJ 9.1.1, from EPSG:31983 to EPSG:4674 and from EPSG:25832 to EPSG:4258.
  expectDegrees({{500000, 8000000, -45.0, -18.088708943695},
                 {623456.789, 9123456.25, -43.879957974249, -7.928354005316},
                 {-150000, 7000000, -51.541258318236, -26.970106854884},
                 {1250000, 9600000, -38.262312224441, -3.593781919841},
                 {166021.44, 1116915.04, -61.763532857483, -79.579614871513}});
  TeluUtmDegreeConversion::setZone(32, Hemisphere::North);
  expectDegrees({{500000, 0, 9.0, 0.0},
                 {691607.86, 5334760.38, 11.575555989724, 48.137221927636},
                 {-100000, 6500000, -1.240555906495, 58.229172657340},
                 {1100000.5, 7200000.25, 21.503841064381, 64.391468457816}});
  TeluUtmDegreeConversion::setZone(23, Hemisphere::South);
  for (const unsigned zone : {0U, 61U})
    EXPECT_THROW(TeluUtmDegreeConversion::setZone(zone, Hemisphere::South), std::invalid_argument);
}

TEST(NumericalUtilsTest, CountsDifferencesBelowTheToleranceAsZero) {
  EXPECT_EQ(NumericalUtils::subtractDoubles(999.9999995, 1000.0, 1e-6), 0.0);
  EXPECT_LT(NumericalUtils::subtractDoubles(999.999998, 1000.0, 1e-6), 0.0);
  EXPECT_EQ(NumericalUtils::subtractDoubles(3.0, 1.0, 2.0), 2.0) << "the tolerance itself is a difference";
  EXPECT_TRUE(std::isnan(NumericalUtils::subtractDoubles(NAN, 1.0, 1e-6)));
}

TEST(TeluCoreProgressBarTest, CountsFromItsStartAndAsksTheHost) {
  std::vector<std::pair<long, long>> steps;
  TeluCoreProgressBar bar(2, 5, [&](long done, long all) { return steps.emplace_back(done, all), false; });
  EXPECT_FALSE(bar.update());
  EXPECT_THAT(steps, ElementsAre(Pair(1, 3)));
  EXPECT_STREQ(TeluCoreProgressBar::ProgressCancelException().what(), "TeluCoreProgressBar canceled");
}
