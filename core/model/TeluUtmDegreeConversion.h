#pragma once

#include "model/Hemisphere.h"
#include "telu_qt_export.h"

#include <utility>

/// From UTM metres to degrees on the ellipsoid GRS80. The zone is that of the whole process: 23 south until
/// another is set. Coordinates may lie outside the zone (an extended zone).
class TELU_QT_EXPORT TeluUtmDegreeConversion {
public:
  /// Longitude and latitude, in this order, in degrees, of an easting and a northing in metres with the usual
  /// false origins (500 km east; 10,000 km north in the south). Krüger's series to the sixth order in the
  /// third flattening, as given by C. F. F. Karney, "Transverse Mercator with an accuracy of a few
  /// nanometers", Journal of Geodesy 85 (2011).
  [[nodiscard]] static std::pair<double, double> utmToDegree(double x, double y);

  /// Throws std::invalid_argument "TeluUtmDegreeConversion::setZone: invalid zone" outside 1 to 60.
  static void setZone(unsigned number, Hemisphere hemisphere);

private:
  static unsigned zoneNumber_;
  static Hemisphere zoneHemisphere_;
};
