#include "support/CommandTest.h"
#include "support/Program.h"

#include <filesystem>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace fs = std::filesystem;
using testing::HasSubstr;

class OutputsTest : public CommandTest {
protected:
  OutputsTest() { project(); }

  /// An executable that tells, by a file, that the import has begun.
  static Ending importWatched(std::vector<std::string> words) {
    words.insert(words.end(), {"basin.db", "--query-executable", executable("> \"${0%/*}/begun\"; answer \"$@\"")});
    return import(words);
  }
};

TEST_F(OutputsTest, WhatHindersWritingIsFoundBeforeTheImport) {
  fs::create_directories("taken/series.csv");
  writeFile("file", "");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"--json", "none/out.json"},
                                                {"--json", "tmp"},
                                                {"--geojson", "file/out"},
                                                {"--json", "new/"},
                                                {"--csv", "file"},
                                                {"--csv", "none/deep"},
                                                {"--json", "ok.json", "--csv", "taken"}}) {
    const Ending ending = importWatched(words);
    EXPECT_EQ(ending.exitCode, 1);
    EXPECT_THAT(ending.err, HasSubstr("lagomare: error: cannot ")) << testing::PrintToString(words);
  }
  EXPECT_FALSE(fs::exists("begun"));
  EXPECT_FALSE(fs::exists("ok.json"));
}

TEST_F(OutputsTest, AfterAFailureAllIsAsItWas) {
  writeFile("old.json", "old");
  runSql("basin.db", "drop table LgmLnkCmaxSC");
  EXPECT_EQ(import({"basin.db", "--json", "old.json", "--csv", "tables", "--geojson", "new"}).exitCode, 1);
  project();
  EXPECT_EQ(import({"basin.db", "--json", "/dev/full", "--csv", "tables", "--geojson", "new"}).exitCode, 1);
  EXPECT_EQ(readFile("old.json"), "old");
  EXPECT_FALSE(fs::exists("tables") || fs::exists("new"));
}

TEST_F(OutputsTest, WhenOneFileCannotBeReplacedTheOthersAreNotEither) {
  writeFile("old.geojson", "old");
  fs::create_directory("tables");
  // Late, when all that can be checked before the import has been checked.
  const std::string script = "mkdir -p \"${0%/*}/tables/curves.csv\"; answer \"$@\"";
  const Ending ending = import({"basin.db", "--query-executable", executable(script), "--csv", "tables", "--geojson",
                                "old.geojson", "--json", "new.json"});
  EXPECT_EQ(ending.exitCode, 1);
  EXPECT_THAT(ending.err, HasSubstr("cannot write tables/curves.csv: Is a directory"));
  EXPECT_EQ(readFile("old.geojson"), "old");
  EXPECT_FALSE(fs::exists("new.json") || fs::exists("tables/elements.csv"));
}

TEST_F(OutputsTest, AFileThatGrowsTooLargeIsAnError) {
  const std::string full = executable("> \"${0%/*}/begun\"");
  EXPECT_EQ(run({"/bin/sh", "-c",
                 "ulimit -f 0; exec '" LAGOMARE "' import basin.db --json new --query-executable \"$0\"", full})
                .exitCode,
            1);
  EXPECT_FALSE(fs::exists("begun")); // a full disk is found before the import starts
  const Ending ending = run({"/bin/sh", "-c", "ulimit -f 8; exec '" LAGOMARE "' import basin.db --csv tables"});
  EXPECT_EQ(ending.exitCode, 1);
  EXPECT_THAT(ending.err, HasSubstr("File too large"));
  EXPECT_FALSE(fs::exists("tables"));
}

TEST_F(OutputsTest, ReplacesWhatALinkNamesAndKeepsItsPermissions) {
  fs::create_directory("far");
  writeFile("far/real.json", "old");
  fs::permissions("far/real.json", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("far/real.json", "link.json");
  fs::create_symlink("far/not yet", "dangling");
  EXPECT_EQ(import({"basin.db", "--json", "link.json", "--geojson", "dangling", "--csv", "far"}).exitCode, 0);
  EXPECT_TRUE(fs::is_symlink("link.json") && fs::is_symlink("dangling"));
  EXPECT_THAT(readFile("far/real.json"), HasSubstr("lagomare-scenario"));
  EXPECT_THAT(readFile("far/not yet"), HasSubstr("FeatureCollection"));
  EXPECT_EQ(fs::status("far/real.json").permissions(), fs::perms::owner_read | fs::perms::owner_write);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  EXPECT_EQ(fs::status("far/links.csv").permissions(), fs::perms(0666U & ~mask));
}

TEST_F(OutputsTest, WritesIntoAPipeThatALinkNames) {
  if (!fs::is_symlink("/dev/stdout") || !fs::exists("/dev/stdout"))
    GTEST_SKIP() << "this system has no link /dev/stdout";
  const std::string command = "'" LAGOMARE "' import basin.db --no-check --quiet --json /dev/stdout | cat";
  EXPECT_THAT(run({"/bin/sh", "-c", command}).out, HasSubstr("lagomare-scenario"));
}

TEST_F(OutputsTest, AnImportLeavesNothingBesideTheProject) {
  fs::create_directory("alone");
  project("", "alone/basin.db");
  EXPECT_EQ(import({"alone/basin.db", "--quiet"}).exitCode, 0);
  EXPECT_EQ(std::distance(fs::directory_iterator("alone"), {}), 1);
}
