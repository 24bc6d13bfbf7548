#include "support/CommandTest.h"
#include "support/Program.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ImportCommandTest : public CommandTest {};

TEST_F(ImportCommandTest, TellsWhatWasFound) {
  const Ending ending = import({project(), "--no-check"});
  EXPECT_EQ(ending.exitCode, 0);
  EXPECT_EQ(ending.err, "");
  EXPECT_EQ(ending.out, "Importação realizada com sucesso\n"
                        "  dialect               2013 (found by its tables)\n"
                        "  UTM zone              23S (assumed; --utm-zone sets another)\n"
                        "  scenario              Scenario1\n"
                        "  period                2000-01 to 2000-12 (12 months)\n"
                        "  hydrological states   2 (Padrão; boundaries 0.5)\n"
                        "  reservoirs            2\n"
                        "  demands               1\n"
                        "  drains                1\n"
                        "  junctions             1\n"
                        "  links                 4 (3 natural, 1 artificial; 1 bidirectional)\n");
  EXPECT_THAT(import({project2010(), "--utm-zone", "24p"}).out,
              AllOf(HasSubstr("2010 (found"), HasSubstr("  24N\n"), HasSubstr("  none (Sem)\n")));
  EXPECT_EQ(import({"basin.db", "--quiet"}).out, "");
}

TEST_F(ImportCommandTest, RunsAQueryOnceThatTheLibraryAsksAgain) {
  project();
  fs::copy_file(LAGOMARE, "lagomare"); // it looks for the query executable beside itself
  executable("tee \"${0%/*}/asked\" | answer \"$@\"", "lagomare-query");
  EXPECT_EQ(run({fs::absolute("lagomare"), "import", "basin.db", "--no-check", "--json", "once.json"}).exitCode, 0);
  std::istringstream lines(readFile("asked"));
  std::vector<std::string> asked;
  for (std::string line; std::getline(lines, line);)
    asked.push_back(line.substr(2)); // behind the flag
  EXPECT_THAT(asked, testing::Contains(HasSubstr("LgmVazNat")));
  std::sort(asked.begin(), asked.end());
  EXPECT_EQ(std::adjacent_find(asked.begin(), asked.end()), asked.end());
  const std::string asksAgain = executable("answer \"$@\"");
  ASSERT_EQ(import({"basin.db", "--json", "again.json", "--query-executable", asksAgain}).exitCode, 0);
  EXPECT_EQ(readFile("once.json"), readFile("again.json"));
}

TEST_F(ImportCommandTest, RefusedAndInvalidProjectsHaveCodesAndShortObjectsOfTheirOwn) {
  writeFile("old.geojson", "old");
  project("update Tk_Gerais set TipoSimul = 1");
  const Ending refused = import({"basin.db", "--json", "-", "--geojson", "old.geojson", "--csv", "tables"});
  EXPECT_EQ(refused.exitCode, 3);
  EXPECT_EQ(refused.out, "{\"format\":\"lagomare-scenario\",\"version\":1,\"dialect\":\"2013\",\"status\":1,"
                         "\"message\":\"Não é possível importar projeto de planejamento tático\"}\n");
  EXPECT_EQ(readFile("old.geojson"), "old");
  EXPECT_FALSE(fs::exists("tables"));
  runSql("basin.db", "delete from Tk_Gerais"); // an empty table is held
  EXPECT_EQ(import({"basin.db", "--json", "short.json"}).exitCode, 4);
  EXPECT_EQ(nlohmann::json::parse(readFile("short.json"))["message"], "Projeto inválido");
}

TEST_F(ImportCommandTest, UsageErrorsHaveACodeOfTheirOwn) {
  project();
  const std::vector<std::vector<std::string>> calls{{},
                                                    {"basin.db", "more"},
                                                    {"basin.db", "--json"},
                                                    {"basin.db", "--json", ""},
                                                    {"basin.db", "--json=", "basin.db"},
                                                    {"basin.db", "--json", "a", "--json", "b"},
                                                    {"basin.db", "--quiet", "--quiet"},
                                                    {"basin.db", "--utm-zone", "61S"},
                                                    {"basin.db", "--utm-zone", "0S"},
                                                    {"basin.db", "--utm-zone", "23"},
                                                    {"basin.db", "--utm-zone", "23I"},
                                                    {"basin.db", "--dialect", "2011"},
                                                    {"basin.db", "--json", "-", "--geojson", "-"},
                                                    {"basin.db", "--csv", "-"},
                                                    {"basin.db", "--json", "a", "--geojson", "./a"},
                                                    {"basin.db", "--json", "d/links.csv", "--csv", "d"},
                                                    {"basin.db", "--geojson", "basin.db"}};
  for (const auto& words : calls) {
    const Ending ending = import(words);
    EXPECT_EQ(ending.exitCode, 2) << testing::PrintToString(words);
    EXPECT_THAT(ending.err, AllOf(StartsWith("lagomare: error: "), HasSubstr("--help"), EndsWith("\n")));
    EXPECT_EQ(ending.out, "");
  }
  EXPECT_EQ(run({LAGOMARE}).exitCode, 2);
}

TEST_F(ImportCommandTest, NamesUnexpectedWordsInTheirOrderAndWhatWasMeant) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> calls{
      {{LAGOMARE, "x.mdb", "y"}, "not a command: \"x.mdb\" \"y\"; did you mean: lagomare import x.mdb ("},
      {{LAGOMARE, "--json", "a", "import", "b"}, "not a command: \"--json\" \"a\""},
      {{LAGOMARE, "import", "--jsn=a", "--", "b", "c"}, "unexpected: \"--jsn=a\" \"c\"; there is no such option"},
      {{LAGOMARE, "import", "--jsn"}, "unexpected: \"--jsn\"; there is no such option"},
      {{LAGOMARE, "import", "a", "b", "c"}, "unexpected: \"b\" \"c\"; one project at a time"}};
  for (const auto& [words, text] : calls)
    EXPECT_THAT(run(words).err, HasSubstr(text));
}

TEST_F(ImportCommandTest, HelpShowsAnExample) {
  EXPECT_THAT(import({"--help"}).out, HasSubstr("lagomare import basin.mdb --json"));
  EXPECT_THAT(run({LAGOMARE, "--version"}).out, StartsWith("lagomare "));
}

TEST_F(ImportCommandTest, PathsAreNeverInterpreted) {
  for (const std::string name :
       {"-dash $HOME `id` it's \"quoted\".db", "new\nline;two  blanks&c|d", "São %PATH%.mdb", "\xFF{}[a,b]"}) {
    const std::string json = "to " + name;
    const Ending ending = import({"--quiet", "--json", json, "--", project("", name)});
    EXPECT_EQ(ending.exitCode, 0) << name << ending.err;
    EXPECT_THAT(readFile(json), HasSubstr("Açude Velho")) << name;
    EXPECT_FALSE(fs::exists(name + "-journal") || fs::exists(name + "-wal"));
  }
}

TEST_F(ImportCommandTest, AClosedOrFullStandardOutputIsAnError) {
  project();
  for (const std::string redirection : {">&-", ">/dev/full"})
    for (const std::string json : {"", "--json -"})
      EXPECT_EQ(
          run({"/bin/sh", "-c", "exec '" LAGOMARE "' import basin.db --csv tables " + json + redirection}).exitCode, 1);
  EXPECT_FALSE(fs::exists("tables"));
  EXPECT_EQ(run({"/bin/sh", "-c", "exec '" LAGOMARE "' import basin.db --quiet --json out <&- >&- 2>&-"}).exitCode, 0);
  EXPECT_THAT(readFile("out"), HasSubstr("Açude Velho"));
}

TEST_F(ImportCommandTest, EndsSilentlyWhenTheReaderOfStandardOutputHasGone) {
  project();
  std::vector<std::string> words{"/usr/bin/perl", "-e", "pipe(R, W); close R; open(STDOUT, '>&W'); exec @ARGV"};
  for (const std::string& word : importing({"basin.db", "--no-check", "--csv", "tables", "--json", "-"}))
    words.push_back(word);
  const Ending ending = run(words);
  EXPECT_EQ(ending.exitCode, -1); // by SIGPIPE
  EXPECT_EQ(ending.err, "");
  EXPECT_FALSE(fs::exists("tables"));
}

TEST_F(ImportCommandTest, WarnsOfALockFile) {
  project("", "basin.mdb");
  EXPECT_EQ(import({"basin.mdb", "--no-check"}).err, "");
  writeFile("basin.ldb", "");
  const Ending ending = import({"basin.mdb", "--no-check"});
  EXPECT_EQ(ending.exitCode, 0);
  EXPECT_THAT(ending.err, AllOf(StartsWith("lagomare: warning: basin.mdb: "), HasSubstr("basin.ldb")));
}
