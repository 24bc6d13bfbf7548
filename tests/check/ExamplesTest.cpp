#include "check/MemoryProject.h"
#include "tools/check/result/CheckResult.h"
#include "tools/check/result/CheckText.h"
#include "tools/project/Dialect.h"

#include <gmock/gmock.h>
#include <string>

#include <fstream>
#include <sstream>

using namespace LagomareTools;
using namespace testing;

namespace {

CheckResult checkOf(Dialect dialect, const std::string& file) {
  std::ostringstream sql;
  sql << std::ifstream(file).rdbuf();
  MemoryProject project(dialect, sql.str());
  CheckResult result = project.check();
  expectFitsImport(project, result, file);
  return result;
}

} // namespace

/// What their notes explain, and nothing else.
TEST(ExamplesTest, HaveTheFaultsThatTheyAreMeantToHave) {
  for (const Dialect dialect : allDialects) {
    const std::string name = std::string(nameOf(dialect)) + ".sql";
    EXPECT_THAT(codesOf(checkOf(dialect, EXAMPLES "/sao-francisco-" + name)),
                ElementsAre("limit-of-other-state", "two-way-partner", "no-natural-flow", "drain-found",
                            "position-outside-zone"));
    EXPECT_THAT(codesOf(checkOf(dialect, SAMPLES "/example-" + name)),
                ElementsAre("limit-of-other-state", "two-way-partner", "element-without-rows", "priority-truncated",
                            "drain-found", "name-empty", "network-in-parts"));
  }
}
