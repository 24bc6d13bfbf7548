#include "model/TeluUtmDegreeConversion.h"

#include <array>
#include <cmath>
#include <complex>
#include <stdexcept>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double degreesPerRadian = 180.0 / pi;
constexpr double equatorialRadius = 6378137.0; // GRS80, m
constexpr double flattening = 1.0 / 298.257222101;
constexpr double centralScale = 0.9996;
constexpr double falseEasting = 500000.0;
constexpr double falseNorthingSouth = 10000000.0;

constexpr double n = flattening / (2.0 - flattening); // third flattening
constexpr double n2 = n * n;
constexpr double n3 = n2 * n;
constexpr double n4 = n3 * n;
constexpr double n5 = n4 * n;
constexpr double n6 = n5 * n;
constexpr double rectifyingRadius = equatorialRadius / (1.0 + n) * (1.0 + n2 / 4.0 + n4 / 64.0 + n6 / 256.0);

/// From the ellipsoidal transverse plane to that of the conformal sphere.
constexpr std::array<double, 6> toSphere{
    n / 2.0 - 2.0 * n2 / 3.0 + 37.0 * n3 / 96.0 - n4 / 360.0 - 81.0 * n5 / 512.0 + 96199.0 * n6 / 604800.0,
    n2 / 48.0 + n3 / 15.0 - 437.0 * n4 / 1440.0 + 46.0 * n5 / 105.0 - 1118711.0 * n6 / 3870720.0,
    17.0 * n3 / 480.0 - 37.0 * n4 / 840.0 - 209.0 * n5 / 4480.0 + 5569.0 * n6 / 90720.0,
    4397.0 * n4 / 161280.0 - 11.0 * n5 / 504.0 - 830251.0 * n6 / 7257600.0,
    4583.0 * n5 / 161280.0 - 108847.0 * n6 / 3991680.0,
    20648693.0 * n6 / 638668800.0};

/// From the conformal to the geographic latitude.
constexpr std::array<double, 6> toGeographic{
    2.0 * n - 2.0 * n2 / 3.0 - 2.0 * n3 + 116.0 * n4 / 45.0 + 26.0 * n5 / 45.0 - 2854.0 * n6 / 675.0,
    7.0 * n2 / 3.0 - 8.0 * n3 / 5.0 - 227.0 * n4 / 45.0 + 2704.0 * n5 / 315.0 + 2323.0 * n6 / 945.0,
    56.0 * n3 / 15.0 - 136.0 * n4 / 35.0 - 1262.0 * n5 / 105.0 + 73814.0 * n6 / 2835.0,
    4279.0 * n4 / 630.0 - 332.0 * n5 / 35.0 - 399572.0 * n6 / 14175.0,
    4174.0 * n5 / 315.0 - 144838.0 * n6 / 6237.0,
    601676.0 * n6 / 22275.0};

} // namespace

unsigned TeluUtmDegreeConversion::zoneNumber_ = 23;
Hemisphere TeluUtmDegreeConversion::zoneHemisphere_ = Hemisphere::South;

void TeluUtmDegreeConversion::setZone(unsigned number, Hemisphere hemisphere) {
  if (number < 1 || number > 60)
    throw std::invalid_argument("TeluUtmDegreeConversion::setZone: invalid zone");
  zoneNumber_ = number;
  zoneHemisphere_ = hemisphere;
}

std::pair<double, double> TeluUtmDegreeConversion::utmToDegree(double x, double y) {
  const double falseNorthing = zoneHemisphere_ == Hemisphere::South ? falseNorthingSouth : 0.0;
  const std::complex<double> plane((y - falseNorthing) / (centralScale * rectifyingRadius),
                                   (x - falseEasting) / (centralScale * rectifyingRadius));
  std::complex<double> sphere = plane;
  for (std::size_t j = 0; j < toSphere.size(); ++j)
    sphere -= toSphere[j] * std::sin(2.0 * static_cast<double>(j + 1) * plane);

  const double conformal = std::asin(std::sin(sphere.real()) / std::cosh(sphere.imag()));
  double latitude = conformal;
  for (std::size_t j = 0; j < toGeographic.size(); ++j)
    latitude += toGeographic[j] * std::sin(2.0 * static_cast<double>(j + 1) * conformal);

  const double centralMeridian = 6.0 * static_cast<double>(zoneNumber_) - 183.0;
  const double fromCentral = std::atan2(std::sinh(sphere.imag()), std::cos(sphere.real()));
  return {centralMeridian + fromCentral * degreesPerRadian, latitude * degreesPerRadian};
}
