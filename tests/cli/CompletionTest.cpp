#include "support/CommandTest.h"
#include "support/Program.h"

#include <string>

using testing::HasSubstr;

class CompletionTest : public CommandTest {
protected:
  /// What bash offers for these words of a call, the last of which is being typed.
  static std::string offered(const std::string& words) {
    return run({"/bin/bash", "-c",
                "source '" LAGOMARE_COMPLETION "'; COMP_WORDS=(" + words +
                    "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n" +
                    "_lagomare '" LAGOMARE "' 2>/dev/null; echo \"${COMPREPLY[@]}\""})
        .out;
  }
};

TEST_F(CompletionTest, OffersOptionsAndTheirValuesAlsoBehindAnEqualsSign) {
  writeFile("basin.db", "");
  EXPECT_EQ(offered("lagomare im"), "import\n");
  EXPECT_THAT(offered("lagomare import --"), HasSubstr("--geojson --"));
  EXPECT_EQ(offered("lagomare import --dialect = 20"), "2010 2013\n");
  EXPECT_EQ(offered("lagomare import --dialect ="), "auto 2010 2013\n");
  EXPECT_EQ(offered("lagomare import --json = bas"), "basin.db\n");
  EXPECT_EQ(offered("lagomare import --json a bas"), "basin.db\n");
}
