#pragma once

#include "model/Enum.h"

#include <cstdint>
#include <string>
#include <utility>

enum class Periodicity : std::int32_t { Monthly = 1 };

/// The length of an interval's steps, with the format in which its dates are shown.
class EnumPeriodicity : public Enum<Periodicity> {
public:
  EnumPeriodicity(Periodicity type, std::string displayName, std::string displayFormat)
      : Enum(static_cast<std::int32_t>(type), std::move(displayName)), dateFormat(std::move(displayFormat)) {}

  std::string dateFormat; ///< in the manner of strftime
};

class MonthlyType : public EnumPeriodicity {
public:
  MonthlyType() : EnumPeriodicity(Periodicity::Monthly, "Mensal", "%m/%Y") {}
};
