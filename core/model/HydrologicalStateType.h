#pragma once

#include "model/Enum.h"

#include <cstdint>

/// How a scenario tells the hydrological state it is in.
enum class HydrologicalStateType : std::int32_t { None = 0, Default = 1, ByReservoir = 2, ByReservoirMonthly = 3 };

class NoHydrologicalType : public Enum<HydrologicalStateType> {
public:
  NoHydrologicalType() : Enum(static_cast<std::int32_t>(HydrologicalStateType::None), "Sem") {}
};

class DefaultHydrologicalType : public Enum<HydrologicalStateType> {
public:
  DefaultHydrologicalType() : Enum(static_cast<std::int32_t>(HydrologicalStateType::Default), "Padrão") {}
};

class ReservoirHydrologicalType : public Enum<HydrologicalStateType> {
public:
  ReservoirHydrologicalType()
      : Enum(static_cast<std::int32_t>(HydrologicalStateType::ByReservoir), "Por reservatório") {}
};

class MonthlyReservoirHydrologicalType : public Enum<HydrologicalStateType> {
public:
  MonthlyReservoirHydrologicalType()
      : Enum(static_cast<std::int32_t>(HydrologicalStateType::ByReservoirMonthly), "Por reservatório mensal") {}
};
