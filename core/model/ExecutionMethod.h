#pragma once

#include "model/Enum.h"
#include "telu_qt_export.h"

/// Tag of the horizon over which a scenario runs.
class ExecutionHorizon;

/// How a scenario is executed. The tag of the family of methods below, and the base of the modes that a
/// scenario can hold.
class TELU_QT_EXPORT ExecutionMethod {
public:
  virtual ~ExecutionMethod();

  [[nodiscard]] const Enum<ExecutionHorizon>& getHorizon() const { return horizon_; }

protected:
  explicit ExecutionMethod(const Enum<ExecutionHorizon>& executionHorizon);

private:
  Enum<ExecutionHorizon> horizon_;
};

class PriorityType : public Enum<ExecutionMethod> {
public:
  PriorityType() : Enum(0, "Otimizador por prioridades") {}
};

class RuleSimulatorType : public Enum<ExecutionMethod> {
public:
  RuleSimulatorType() : Enum(1, "Simulador por regras") {}
};

class RuleOptimizerType : public Enum<ExecutionMethod> {
public:
  RuleOptimizerType() : Enum(2, "Otimizador de regras") {}
};

class GuaranteeCurveType : public Enum<ExecutionMethod> {
public:
  GuaranteeCurveType() : Enum(3, "Curva de garantia") {}
};

class SystemGuaranteeCurveType : public Enum<ExecutionMethod> {
public:
  SystemGuaranteeCurveType() : Enum(4, "Curva de garantia do sistema") {}
};

class Continuous : public Enum<ExecutionHorizon> {
public:
  Continuous() : Enum(0, "Contínuo") {}
};

class Window : public Enum<ExecutionHorizon> {
public:
  Window() : Enum(1, "Janela") {}
};

class Optimization : public Enum<ExecutionHorizon> {
public:
  Optimization() : Enum(2, "Otimização") {}
};
