#pragma once

#include "model/Enum.h"

#include <cstdint>
#include <memory>
#include <vector>

/// The kinds of series. The ids 4, 6 and 8 belong to none.
enum class SerieType : std::int32_t {
  Precipitation = 0,
  Evapotranspiration = 1,
  NaturalAffluentFlow = 2,
  TargetVolume = 3,
  WaterDemand = 5,
  LinkLoss = 7,
  InitialVolume = 9,
  FinalVolume = 10,
  ControlledAffluentFlow = 11,
  ControlledAffluentVolume = 12,
  UncontrolledAffluentFlow = 13,
  UncontrolledAffluentVolume = 14,
  AffluentFlow = 15,
  WaterLoss = 16,
  EffluentFlow = 17,
  EffluentVolume = 18,
  Quota = 19,
  Area = 20,
  SatisfiedDemand = 21,
  SatisfiedDemandVolume = 22,
  SatisfiedDemandPercentage = 23,
  ConsumedDemand = 24,
  ConsumedDemandVolume = 25,
  SupplyShortage = 26,
  SupplyShortageVolume = 27,
  TargetDemand = 28,
  TargetDemandVolume = 29,
  ServiceFailure = 30,
  OverSupply = 31,
  OverSupplyVolume = 32,
  PrecipitationVolume = 33,
  EvaporationVolume = 34,
  Release = 35,
  ReleaseVolume = 36,
  Spill = 37,
  SpillVolume = 38,
  PrioritySerie = 39,
  PumpingCostSerie = 40,
  LinkSenseSerie = 41,
  LinkLimitSerie = 42
};

// LinkLoss and WaterLoss share their display name; the ids tell the input from the result.

class Precipitation : public Enum<SerieType> {
public:
  Precipitation() : Enum(static_cast<std::int32_t>(SerieType::Precipitation), "Precipitação") {}
};

class Evapotranspiration : public Enum<SerieType> {
public:
  Evapotranspiration() : Enum(static_cast<std::int32_t>(SerieType::Evapotranspiration), "Evaporação") {}
};

class NaturalAffluentFlow : public Enum<SerieType> {
public:
  NaturalAffluentFlow()
      : Enum(static_cast<std::int32_t>(SerieType::NaturalAffluentFlow), "Vazão natural incremental") {}
};

class TargetVolume : public Enum<SerieType> {
public:
  TargetVolume() : Enum(static_cast<std::int32_t>(SerieType::TargetVolume), "Volume meta") {}
};

class WaterDemand : public Enum<SerieType> {
public:
  WaterDemand() : Enum(static_cast<std::int32_t>(SerieType::WaterDemand), "Demanda") {}
};

class LinkLoss : public Enum<SerieType> {
public:
  LinkLoss() : Enum(static_cast<std::int32_t>(SerieType::LinkLoss), "Perda em trânsito") {}
};

class LinkLimitSerie : public Enum<SerieType> {
public:
  LinkLimitSerie() : Enum(static_cast<std::int32_t>(SerieType::LinkLimitSerie), "Limite de trecho") {}
};

class InitialVolume : public Enum<SerieType> {
public:
  InitialVolume() : Enum(static_cast<std::int32_t>(SerieType::InitialVolume), "Volume inicial") {}
};

class FinalVolume : public Enum<SerieType> {
public:
  FinalVolume() : Enum(static_cast<std::int32_t>(SerieType::FinalVolume), "Volume final") {}
};

class ControlledAffluentFlow : public Enum<SerieType> {
public:
  ControlledAffluentFlow()
      : Enum(static_cast<std::int32_t>(SerieType::ControlledAffluentFlow), "Vazão controlada a montante") {}
};

class EffluentFlow : public Enum<SerieType> {
public:
  EffluentFlow() : Enum(static_cast<std::int32_t>(SerieType::EffluentFlow), "Vazão efluente") {}
};

class AffluentFlow : public Enum<SerieType> {
public:
  AffluentFlow() : Enum(static_cast<std::int32_t>(SerieType::AffluentFlow), "Vazão afluente") {}
};

class UncontrolledAffluentVolume : public Enum<SerieType> {
public:
  UncontrolledAffluentVolume()
      : Enum(static_cast<std::int32_t>(SerieType::UncontrolledAffluentVolume), "Volume não controlado a montante") {}
};

class UncontrolledAffluentFlow : public Enum<SerieType> {
public:
  UncontrolledAffluentFlow()
      : Enum(static_cast<std::int32_t>(SerieType::UncontrolledAffluentFlow), "Vazão não controlada a montante") {}
};

class ControlledAffluentVolume : public Enum<SerieType> {
public:
  ControlledAffluentVolume()
      : Enum(static_cast<std::int32_t>(SerieType::ControlledAffluentVolume), "Volume controlado a montante") {}
};

class EffluentVolume : public Enum<SerieType> {
public:
  EffluentVolume() : Enum(static_cast<std::int32_t>(SerieType::EffluentVolume), "Volume efluente") {}
};

class Quota : public Enum<SerieType> {
public:
  Quota() : Enum(static_cast<std::int32_t>(SerieType::Quota), "Cota") {}
};

class Area : public Enum<SerieType> {
public:
  Area() : Enum(static_cast<std::int32_t>(SerieType::Area), "Área") {}
};

class Release : public Enum<SerieType> {
public:
  Release() : Enum(static_cast<std::int32_t>(SerieType::Release), "Vazão liberada") {}
};

class ReleaseVolume : public Enum<SerieType> {
public:
  ReleaseVolume() : Enum(static_cast<std::int32_t>(SerieType::ReleaseVolume), "Volume liberado") {}
};

class Spill : public Enum<SerieType> {
public:
  Spill() : Enum(static_cast<std::int32_t>(SerieType::Spill), "Vazão vertida") {}
};

class SpillVolume : public Enum<SerieType> {
public:
  SpillVolume() : Enum(static_cast<std::int32_t>(SerieType::SpillVolume), "Volume vertido") {}
};

class SatisfiedDemand : public Enum<SerieType> {
public:
  SatisfiedDemand() : Enum(static_cast<std::int32_t>(SerieType::SatisfiedDemand), "Demanda atendida") {}
};

class SatisfiedDemandPercentage : public Enum<SerieType> {
public:
  SatisfiedDemandPercentage()
      : Enum(static_cast<std::int32_t>(SerieType::SatisfiedDemandPercentage), "Demanda atendida em porcentagem") {}
};

class SatisfiedDemandVolume : public Enum<SerieType> {
public:
  SatisfiedDemandVolume()
      : Enum(static_cast<std::int32_t>(SerieType::SatisfiedDemandVolume), "Demanda atendida em volume") {}
};

class ConsumedDemand : public Enum<SerieType> {
public:
  ConsumedDemand() : Enum(static_cast<std::int32_t>(SerieType::ConsumedDemand), "Demanda consumida") {}
};

class ConsumedDemandVolume : public Enum<SerieType> {
public:
  ConsumedDemandVolume()
      : Enum(static_cast<std::int32_t>(SerieType::ConsumedDemandVolume), "Demanda consumida em volume") {}
};

class SupplyShortage : public Enum<SerieType> {
public:
  SupplyShortage() : Enum(static_cast<std::int32_t>(SerieType::SupplyShortage), "Escassez de oferta") {}
};

class SupplyShortageVolume : public Enum<SerieType> {
public:
  SupplyShortageVolume()
      : Enum(static_cast<std::int32_t>(SerieType::SupplyShortageVolume), "Escassez de oferta em volume") {}
};

class TargetDemand : public Enum<SerieType> {
public:
  TargetDemand() : Enum(static_cast<std::int32_t>(SerieType::TargetDemand), "Demanda meta") {}
};

class TargetDemandVolume : public Enum<SerieType> {
public:
  TargetDemandVolume() : Enum(static_cast<std::int32_t>(SerieType::TargetDemandVolume), "Demanda meta em volume") {}
};

class ServiceFailure : public Enum<SerieType> {
public:
  ServiceFailure() : Enum(static_cast<std::int32_t>(SerieType::ServiceFailure), "Falha no atendimento") {}
};

class OverSupply : public Enum<SerieType> {
public:
  OverSupply() : Enum(static_cast<std::int32_t>(SerieType::OverSupply), "Excesso de oferta") {}
};

class OverSupplyVolume : public Enum<SerieType> {
public:
  OverSupplyVolume() : Enum(static_cast<std::int32_t>(SerieType::OverSupplyVolume), "Excesso de oferta em volume") {}
};

class WaterLoss : public Enum<SerieType> {
public:
  WaterLoss() : Enum(static_cast<std::int32_t>(SerieType::WaterLoss), "Perda em trânsito") {}
};

class PrecipitationVolume : public Enum<SerieType> {
public:
  PrecipitationVolume() : Enum(static_cast<std::int32_t>(SerieType::PrecipitationVolume), "Volume precipitado") {}
};

class EvaporationVolume : public Enum<SerieType> {
public:
  EvaporationVolume() : Enum(static_cast<std::int32_t>(SerieType::EvaporationVolume), "Volume evaporado") {}
};

class PrioritySerie : public Enum<SerieType> {
public:
  PrioritySerie() : Enum(static_cast<std::int32_t>(SerieType::PrioritySerie), "Prioridade") {}
};

class PumpingCostSerie : public Enum<SerieType> {
public:
  PumpingCostSerie() : Enum(static_cast<std::int32_t>(SerieType::PumpingCostSerie), "Custo de bombeamento") {}
};

class LinkSenseSerie : public Enum<SerieType> {
public:
  LinkSenseSerie() : Enum(static_cast<std::int32_t>(SerieType::LinkSenseSerie), "Sentido do trecho") {}
};

// Constants at namespace scope: every translation unit has its own.

/// What a planner gives. The order is that of display, not of the ids.
inline const std::vector<std::shared_ptr<Enum<SerieType>>> inputSerieTypes{
    std::make_shared<Precipitation>(), std::make_shared<Evapotranspiration>(), std::make_shared<NaturalAffluentFlow>(),
    std::make_shared<TargetVolume>(),  std::make_shared<WaterDemand>(),        std::make_shared<LinkLoss>(),
    std::make_shared<LinkLimitSerie>()};

/// What a run computes. The order is that of display, not of the ids.
inline const std::vector<std::shared_ptr<Enum<SerieType>>> resultSerieTypes{
    std::make_shared<InitialVolume>(),
    std::make_shared<FinalVolume>(),
    std::make_shared<ControlledAffluentFlow>(),
    std::make_shared<EffluentFlow>(),
    std::make_shared<AffluentFlow>(),
    std::make_shared<UncontrolledAffluentVolume>(),
    std::make_shared<UncontrolledAffluentFlow>(),
    std::make_shared<ControlledAffluentVolume>(),
    std::make_shared<EffluentVolume>(),
    std::make_shared<Quota>(),
    std::make_shared<Area>(),
    std::make_shared<Release>(),
    std::make_shared<ReleaseVolume>(),
    std::make_shared<Spill>(),
    std::make_shared<SpillVolume>(),
    std::make_shared<SatisfiedDemand>(),
    std::make_shared<SatisfiedDemandPercentage>(),
    std::make_shared<SatisfiedDemandVolume>(),
    std::make_shared<ConsumedDemand>(),
    std::make_shared<ConsumedDemandVolume>(),
    std::make_shared<SupplyShortage>(),
    std::make_shared<SupplyShortageVolume>(),
    std::make_shared<TargetDemand>(),
    std::make_shared<TargetDemandVolume>(),
    std::make_shared<ServiceFailure>(),
    std::make_shared<OverSupply>(),
    std::make_shared<OverSupplyVolume>(),
    std::make_shared<WaterLoss>(),
    std::make_shared<PrecipitationVolume>(),
    std::make_shared<EvaporationVolume>(),
    std::make_shared<PrioritySerie>(),
    std::make_shared<PumpingCostSerie>(),
    std::make_shared<LinkSenseSerie>()};
