#include "model/ExecutionMethod.h"

ExecutionMethod::ExecutionMethod(const Enum<ExecutionHorizon>& executionHorizon) : horizon_(executionHorizon) {}

ExecutionMethod::~ExecutionMethod() = default;
