#pragma once

#include "model/Enum.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>

/// The kinds of element, by the ids that projects and lookups use.
enum class ElementType : std::int32_t {
  Reservoir = 0,
  Demand = 1, ///< the generic demand; elements carry one of the kinds 2 to 6
  HumanDemand = 2,
  AnimalDemand = 3,
  IndustrialDemand = 4,
  AgricultureDemand = 5,
  DrainDemand = 6,
  Junction = 7,
  Basin = 8,
  Link = 9, ///< the generic link; elements carry one of the kinds 10 and 11
  ArtificialLink = 10,
  NaturalLink = 11
};

/// A kind of element as people see it, with the letter of its family: R reservoir, D demand, J junction,
/// B basin, L link.
class EnumElementType : public Enum<ElementType> {
public:
  EnumElementType(ElementType type, char familyCode, std::string displayName)
      : Enum(static_cast<std::int32_t>(type), std::move(displayName)), code(familyCode) {}

  [[nodiscard]] ElementType type() const { return static_cast<ElementType>(id); }

  char code;
};

class ReservoirType : public EnumElementType {
public:
  ReservoirType() : EnumElementType(ElementType::Reservoir, 'R', "Reservatório") {}
};

class DemandType : public EnumElementType {
public:
  DemandType() : EnumElementType(ElementType::Demand, 'D', "Demanda") {}
};

class HumanDemandType : public EnumElementType {
public:
  HumanDemandType() : EnumElementType(ElementType::HumanDemand, 'D', "Demanda humana") {}
};

class AnimalDemandType : public EnumElementType {
public:
  AnimalDemandType() : EnumElementType(ElementType::AnimalDemand, 'D', "Demanda animal") {}
};

class IndustrialDemandType : public EnumElementType {
public:
  IndustrialDemandType() : EnumElementType(ElementType::IndustrialDemand, 'D', "Demanda industrial") {}
};

class AgricultureDemandType : public EnumElementType {
public:
  AgricultureDemandType() : EnumElementType(ElementType::AgricultureDemand, 'D', "Demanda de irrigação") {}
};

class DrainDemandType : public EnumElementType {
public:
  DrainDemandType() : EnumElementType(ElementType::DrainDemand, 'D', "Dreno") {}
};

class JunctionType : public EnumElementType {
public:
  JunctionType() : EnumElementType(ElementType::Junction, 'J', "Junção") {}
};

class BasinType : public EnumElementType {
public:
  BasinType() : EnumElementType(ElementType::Basin, 'B', "Bacia") {}
};

class LinkType : public EnumElementType {
public:
  LinkType() : EnumElementType(ElementType::Link, 'L', "Trecho") {}
};

class ArtificialLinkType : public EnumElementType {
public:
  ArtificialLinkType() : EnumElementType(ElementType::ArtificialLink, 'L', "Trecho artificial") {}
};

class NaturalLinkType : public EnumElementType {
public:
  NaturalLinkType() : EnumElementType(ElementType::NaturalLink, 'L', "Trecho natural") {}
};

// Constants at namespace scope: every translation unit has its own, so they are ready before anything else
// that the unit initialises. The generic kinds 1 and 9 belong to no group of types.

inline const std::set<ElementType> reservoirAndDemandTypes{
    ElementType::Reservoir,        ElementType::HumanDemand,       ElementType::AnimalDemand,
    ElementType::IndustrialDemand, ElementType::AgricultureDemand, ElementType::DrainDemand};
inline const std::set<ElementType> demandTypes{ElementType::HumanDemand, ElementType::AnimalDemand,
                                               ElementType::IndustrialDemand, ElementType::AgricultureDemand,
                                               ElementType::DrainDemand};
inline const std::set<ElementType> consumptiveDemandTypes{
    ElementType::HumanDemand, ElementType::AnimalDemand, ElementType::IndustrialDemand, ElementType::AgricultureDemand};
inline const std::set<ElementType> reservoirTypes{ElementType::Reservoir};
inline const std::set<ElementType> junctionTypes{ElementType::Junction};
inline const std::set<ElementType> basinTypes{ElementType::Basin};
inline const std::set<ElementType> nodeTypes{
    ElementType::HumanDemand, ElementType::AnimalDemand, ElementType::IndustrialDemand, ElementType::AgricultureDemand,
    ElementType::DrainDemand, ElementType::Reservoir,    ElementType::Junction,         ElementType::Basin};
inline const std::set<ElementType> linkTypes{ElementType::ArtificialLink, ElementType::NaturalLink};
inline const std::set<ElementType> allElementTypes{
    ElementType::HumanDemand, ElementType::AnimalDemand, ElementType::IndustrialDemand, ElementType::AgricultureDemand,
    ElementType::DrainDemand, ElementType::Reservoir,    ElementType::Junction,         ElementType::ArtificialLink,
    ElementType::NaturalLink, ElementType::Basin};

/// Values ordered by their addresses: the order of iteration carries no meaning.
using ElementKindValues = std::set<std::shared_ptr<EnumElementType>>;

inline const ElementKindValues concreteKindValues{
    std::make_shared<ReservoirType>(),         std::make_shared<AnimalDemandType>(),
    std::make_shared<HumanDemandType>(),       std::make_shared<IndustrialDemandType>(),
    std::make_shared<AgricultureDemandType>(), std::make_shared<DrainDemandType>(),
    std::make_shared<ArtificialLinkType>(),    std::make_shared<NaturalLinkType>(),
    std::make_shared<JunctionType>(),          std::make_shared<BasinType>()};
/// The same ten kinds, as values of their own.
inline const ElementKindValues concreteKindValuesCopy{
    std::make_shared<ReservoirType>(),         std::make_shared<AnimalDemandType>(),
    std::make_shared<HumanDemandType>(),       std::make_shared<IndustrialDemandType>(),
    std::make_shared<AgricultureDemandType>(), std::make_shared<DrainDemandType>(),
    std::make_shared<ArtificialLinkType>(),    std::make_shared<NaturalLinkType>(),
    std::make_shared<JunctionType>(),          std::make_shared<BasinType>()};
inline const ElementKindValues linkKindValues{std::make_shared<ArtificialLinkType>(),
                                              std::make_shared<NaturalLinkType>()};
inline const ElementKindValues genericKindValues{std::make_shared<ReservoirType>(), std::make_shared<DemandType>(),
                                                 std::make_shared<LinkType>(), std::make_shared<JunctionType>()};
inline const ElementKindValues allKindValues{std::make_shared<ReservoirType>(),
                                             std::make_shared<DemandType>(),
                                             std::make_shared<AnimalDemandType>(),
                                             std::make_shared<HumanDemandType>(),
                                             std::make_shared<IndustrialDemandType>(),
                                             std::make_shared<AgricultureDemandType>(),
                                             std::make_shared<DrainDemandType>(),
                                             std::make_shared<JunctionType>(),
                                             std::make_shared<BasinType>(),
                                             std::make_shared<LinkType>(),
                                             std::make_shared<ArtificialLinkType>(),
                                             std::make_shared<NaturalLinkType>()};
