#include "model/ExecutionMethod.h"

ExecutionMethod::ExecutionMethod(const Enum<ExecutionHorizon>& executionHorizon) : horizon(executionHorizon) {}

ExecutionMethod::~ExecutionMethod() = default;
