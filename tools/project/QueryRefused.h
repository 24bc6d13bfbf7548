#pragma once

#include "tools/system/Failure.h"

namespace LagomareTools {

/// The query executable refused one query; the text is its reason. The next query can be asked all the same. Every
/// other Failure of a source means that it answers no more.
class QueryRefused : public Failure {
public:
  using Failure::Failure;
};

} // namespace LagomareTools
