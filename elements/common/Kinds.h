#pragma once

#include "model/ElementType.h"
#include "model/SerieType.h"

namespace Lagomare {

// The kinds of element and of series that are loaded, by the ids that they have in every core. How a host's core names
// its enumerators is not known here.

constexpr auto reservoirKind = static_cast<ElementType>(0);
constexpr auto humanDemandKind = static_cast<ElementType>(2);
constexpr auto drainKind = static_cast<ElementType>(6);
constexpr auto junctionKind = static_cast<ElementType>(7);
constexpr auto artificialLinkKind = static_cast<ElementType>(10);
constexpr auto naturalLinkKind = static_cast<ElementType>(11);

constexpr auto precipitationSeries = static_cast<SerieType>(0); ///< mm
constexpr auto evaporationSeries = static_cast<SerieType>(1);   ///< mm
constexpr auto naturalFlowSeries = static_cast<SerieType>(2);   ///< m³/s
constexpr auto targetVolumeSeries = static_cast<SerieType>(3);  ///< a fraction
constexpr auto demandSeries = static_cast<SerieType>(5);        ///< m³/s
constexpr auto lossSeries = static_cast<SerieType>(7);          ///< %
constexpr auto flowLimitSeries = static_cast<SerieType>(42);    ///< m³/s

} // namespace Lagomare
