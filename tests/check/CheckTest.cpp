#include "check/MemoryProject.h"
#include "tools/check/CheckText.h"

#include <gmock/gmock.h>

using namespace LagomareTools;
using namespace testing;

TEST(CheckTest, FindsNothingInASoundProject) {
  for (const Dialect dialect : allDialects) {
    MemoryProject project(dialect, soundProject(dialect));
    const CheckResult result = project.check();
    EXPECT_THAT(codesOf(result), IsEmpty()) << textOf(result, "sound", true);
    EXPECT_EQ(project.import().status, importSucceeded.code);
  }
}
