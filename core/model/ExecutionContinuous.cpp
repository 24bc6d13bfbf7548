#include "model/ExecutionContinuous.h"

ExecutionContinuous::ExecutionContinuous() : ExecutionMethod(Continuous()) {}
