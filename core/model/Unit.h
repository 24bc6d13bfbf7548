#pragma once

#include "model/Enum.h"
#include "model/SerieType.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>

/// The units of series. MG and KG share the id 13 and no unit has 14: projects hold these ids.
enum class Unit : std::int32_t {
  Dimensionless = 0,
  H = 1,
  HD = 2,
  M3S = 3,
  HM3 = 4,
  MM = 5,
  M = 6,
  M3 = 7,
  KM2 = 8,
  RS = 9,
  Perc = 10,
  CM = 11,
  CDegree = 12,
  MG = 13,
  KG = 13,
  Liters = 15,
  LitersBySeconds = 16
};

class Dimensionless : public Enum<Unit> {
public:
  Dimensionless() : Enum(static_cast<std::int32_t>(Unit::Dimensionless), "adimensional") {}
};

class H : public Enum<Unit> {
public:
  H() : Enum(static_cast<std::int32_t>(Unit::H), "horas") {}
};

class HD : public Enum<Unit> {
public:
  HD() : Enum(static_cast<std::int32_t>(Unit::HD), "horas/dia") {}
};

class M3S : public Enum<Unit> {
public:
  M3S() : Enum(static_cast<std::int32_t>(Unit::M3S), "m³/s") {}
};

class HM3 : public Enum<Unit> {
public:
  HM3() : Enum(static_cast<std::int32_t>(Unit::HM3), "hm³") {}
};

class MM : public Enum<Unit> {
public:
  MM() : Enum(static_cast<std::int32_t>(Unit::MM), "mm") {}
};

class M : public Enum<Unit> {
public:
  M() : Enum(static_cast<std::int32_t>(Unit::M), "m") {}
};

class M3 : public Enum<Unit> {
public:
  M3() : Enum(static_cast<std::int32_t>(Unit::M3), "m³") {}
};

class KM2 : public Enum<Unit> {
public:
  KM2() : Enum(static_cast<std::int32_t>(Unit::KM2), "km²") {}
};

class RS : public Enum<Unit> {
public:
  RS() : Enum(static_cast<std::int32_t>(Unit::RS), "R$") {}
};

class Perc : public Enum<Unit> {
public:
  Perc() : Enum(static_cast<std::int32_t>(Unit::Perc), "%") {}
};

class CM : public Enum<Unit> {
public:
  CM() : Enum(static_cast<std::int32_t>(Unit::CM), "cm") {}
};

class CDegree : public Enum<Unit> {
public:
  CDegree() : Enum(static_cast<std::int32_t>(Unit::CDegree), "cº") {}
};

class MG : public Enum<Unit> {
public:
  MG() : Enum(static_cast<std::int32_t>(Unit::MG), "Mg") {}
};

class KG : public Enum<Unit> {
public:
  KG() : Enum(static_cast<std::int32_t>(Unit::KG), "Kg") {}
};

class Liters : public Enum<Unit> {
public:
  Liters() : Enum(static_cast<std::int32_t>(Unit::Liters), "Liters") {}
};

class LitersBySeconds : public Enum<Unit> {
public:
  LitersBySeconds() : Enum(static_cast<std::int32_t>(Unit::LitersBySeconds), "LitersBySeconds") {}
};

/// Seventeen values, ordered by their addresses. Each translation unit has its own set.
inline const std::set<std::shared_ptr<Enum<Unit>>> unitValues{std::make_shared<Dimensionless>(),
                                                              std::make_shared<H>(),
                                                              std::make_shared<HD>(),
                                                              std::make_shared<M3S>(),
                                                              std::make_shared<HM3>(),
                                                              std::make_shared<MM>(),
                                                              std::make_shared<M>(),
                                                              std::make_shared<M3>(),
                                                              std::make_shared<KM2>(),
                                                              std::make_shared<RS>(),
                                                              std::make_shared<Perc>(),
                                                              std::make_shared<CM>(),
                                                              std::make_shared<CDegree>(),
                                                              std::make_shared<MG>(),
                                                              std::make_shared<KG>(),
                                                              std::make_shared<Liters>(),
                                                              std::make_shared<LitersBySeconds>()};

/// "Vazão liberada(m³/s)"
inline const std::string releaseLabel = Release().name + "(" + M3S().name + ")";
