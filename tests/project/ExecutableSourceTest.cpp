#include "support/CommandTest.h"

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class ExecutableSourceTest : public CommandTest {
protected:
  static Ending importBy(const std::string& script, const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"basin.db", "--quiet", "--no-check", "--query-executable", executable(script)};
    words.insert(words.end(), more.begin(), more.end());
    return import(words);
  }
};

TEST_F(ExecutableSourceTest, StartsTheExecutableByItsOwnPathWithTheArgumentsUnchanged) {
  project("", "basin.db");
  const std::string outside = fs::current_path().string();
  writeFile("log name", "");
  const Ending ending =
      importBy("log=$(dirname \"$0\")/calls; printf '%s|' \"$0\" \"$@\" >> \"$log\"; cat >> \"$log\";\n"
               "echo noise; kill -l >/dev/null; answer \"$@\"; exit 3");
  EXPECT_EQ(ending.exitCode, 0);
  EXPECT_EQ(ending.out + ending.err, "");
  EXPECT_THAT(readFile("calls"),
              StartsWith(outside + "/own query|" + outside + "/basin.db|select count(*) from DefGerais|0|"));
  EXPECT_THAT(readFile("calls"), HasSubstr("|select NumPto, Valor from LgmVazNat |1|"));
  const std::string again = "ulimit -n 16; exec '" LAGOMARE "' import basin.db --query-executable 'own query'";
  EXPECT_EQ(run({"/bin/sh", "-c", again}).exitCode, 0); // no query leaves a descriptor open
}

TEST_F(ExecutableSourceTest, AnAnswerThatWasNotWrittenIsAnError) {
  project();
  for (const std::string fault : {"exit 0", "echo 'out of order' >&2; exit", "rm query-result.txt; exit", "kill -9 $$",
                                  "answer \"$@\"; kill -9 $$", "> query-result.txt; echo 'out of order' >&2; exit 1"}) {
    // Late, when an old answer could be read again.
    const Ending ending = importBy("case \"$2\" in *LgmResPrior) " + fault + ";; esac; answer \"$@\"");
    EXPECT_EQ(ending.exitCode, 1) << fault;
    EXPECT_THAT(ending.err, AllOf(HasSubstr("basin.db: cannot be read: the query executable /"),
                                  HasSubstr("own query did not answer")));
    if (fault.find("order") != std::string::npos) {
      EXPECT_THAT(ending.err, HasSubstr("did not answer: out of order"));
    }
  }
}

TEST_F(ExecutableSourceTest, WithstandsHostileExecutables) {
  project();
  EXPECT_EQ(importBy(": > query-result.txt; exit 1", {"--dialect", "2013"}).exitCode, 4); // an answer without rows
  EXPECT_EQ(importBy(": > query-result.txt; echo noise >&2", {"--dialect", "2013"}).exitCode, 4);
  EXPECT_EQ(importBy("rm -rf \"$PWD\"", {"--dialect", "2013"}).exitCode, 1);
  EXPECT_EQ(importBy("rm -rf \"$PWD\"/*", {"--dialect", "2013"}).exitCode, 1);
  EXPECT_THAT(importBy("answer \"$@\"; sed -i 's/ [.]$//' query-result.txt", {"--dialect", "2013"}).err,
              HasSubstr("the table needs the columns of this dialect"));
  EXPECT_THAT(importBy("answer \"$@\"; sed -i 's/ 1 0 [.]$/ ./' query-result.txt").err, HasSubstr("has no column 2"));
  writeFile("own query", "#!/no/such/interpreter\n");
  EXPECT_THAT(import({"basin.db", "--query-executable", "own query"}).err, HasSubstr("own query: No such file"));
}

TEST_F(ExecutableSourceTest, WhatAQueryLeavesRunningEndsWithIt) {
  project();
  const LifeLine alive("alive");
  const Ending ending = importBy("answer \"$@\"; case \"$2\" in *LgmResPrior)\n"
                                 "exec 3> \"${0%/*}/alive\"; (trap '' HUP; sleep 1000) & setsid sleep 1000 & ;; esac");
  EXPECT_EQ(ending.exitCode, 0) << ending.err;
  EXPECT_TRUE(alive.awaitEnd());
}

TEST_F(ExecutableSourceTest, ChildrenThatTheProgramHadBeforeLiveOn) {
  project();
  executable("answer \"$@\"");
  EXPECT_EQ(run({"/bin/sh", "-c",
                 "sleep 1000 & echo $! > pid; exec '" LAGOMARE "' import basin.db --query-executable 'own query'"})
                .exitCode,
            0);
  const pid_t child = std::stoi(readFile("pid"));
  EXPECT_EQ(::kill(child, SIGKILL), 0);
}

TEST_F(ExecutableSourceTest, ControlCharactersInNamesBecomeBlanks) {
  project();
  EXPECT_EQ(importBy("answer \"$@\"; sed -i 's/Canal/Ca\\tn\\x1Bal/' query-result.txt", {"--csv", "tables"}).exitCode,
            0);
  EXPECT_THAT(readFile("tables/links.csv"), HasSubstr(",Ca n al,"));
}

TEST_F(ExecutableSourceTest, TheExecutableHearsSignalsAsUsual) {
  project();
  // Read by the shell itself: while it starts a program it blocks signals.
  EXPECT_EQ(importBy("while read -r line; do echo \"$line\"; done </proc/$$/status >\"${0%/*}/status\"\n"
                     "answer \"$@\"")
                .exitCode,
            0);
  for (const std::string field : {"SigBlk:", "SigIgn:"}) {
    const std::string status = readFile("status");
    const unsigned long long deaf = std::stoull(status.substr(status.find(field) + field.size()), nullptr, 16);
    for (const int signal : {SIGINT, SIGTERM, SIGQUIT, SIGHUP, SIGPIPE})
      EXPECT_EQ(deaf >> (signal - 1) & 1U, 0U) << field << signal;
  }
}
