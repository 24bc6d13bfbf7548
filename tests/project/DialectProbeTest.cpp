#include "support/CommandTest.h"

#include <string>
#include <vector>

using testing::HasSubstr;

class DialectProbeTest : public CommandTest {
protected:
  static std::string errorOf(const std::vector<std::string>& words) {
    const Ending ending = import(words);
    EXPECT_EQ(ending.exitCode, 1) << ending.err;
    return ending.err;
  }
};

TEST_F(DialectProbeTest, TheTablesTellTheDialectsApart) {
  project();
  runSql("basin.db", "create table DefGerais (a)");
  EXPECT_THAT(errorOf({"basin.db"}),
              HasSubstr("holds both the table DefGerais (dialect 2010) and Tk_Gerais (dialect 2013)"));
  runSql("basin.db", "drop table DefGerais; alter table Tk_Gerais rename to t; alter table t rename to tk_geraiS");
  EXPECT_EQ(import({"basin.db", "--quiet"}).exitCode, 0);
  runSql("basin.db", "drop table tk_geraiS");
  EXPECT_THAT(errorOf({"basin.db"}), HasSubstr("holds neither the table DefGerais (dialect 2010) nor Tk_Gerais"));
}

TEST_F(DialectProbeTest, ACustomExecutableSaysThatATableIsMissingOrNothing) {
  project();
  const auto importBy = [](const std::string& answerFor2010) {
    return import({"basin.db", "--quiet", "--query-executable",
                   executable("case \"$2\" in *count*DefGerais) " + answerFor2010 + "; exit 1;; esac; answer \"$@\"")});
  };
  for (const std::string missing : {":", "> query-result.txt", "echo no such thing >&2; > query-result.txt"})
    EXPECT_EQ(importBy(missing).exitCode, 0) << missing;
  for (const std::string script : {"exit", "echo 'hello you .' > query-result.txt"})
    EXPECT_THAT(errorOf({"basin.db", "--query-executable", executable(script)}),
                HasSubstr(script == "exit" ? "own query did not answer" : "it answered \"hello\", which is no row"));
}
