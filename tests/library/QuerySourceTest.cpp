#include "access/QuerySource.h"

#include "ImportFixture.h"
#include "access/FieldError.h"
#include "access/LagomareProjectManager.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace testing;

namespace {

/// A host's exception, of no standard class.
struct LineLost {
  int code;
};

/// Gives a text, then ends or throws.
class Buffer : public std::stringbuf {
public:
  Buffer(const std::string& text, bool isCut) : std::stringbuf(text), isCut_(isCut) {}

protected:
  int_type underflow() override { return isCut_ ? throw LineLost{7} : std::stringbuf::underflow(); }

private:
  bool isCut_;
};

class Answer : public std::istream {
public:
  Answer(const std::string& text, bool isCut, int& open) : std::istream(nullptr), buffer_(text, isCut), open_(open) {
    rdbuf(&buffer_);
    ++open_;
  }
  ~Answer() override { --open_; }

private:
  Buffer buffer_;
  int& open_;
};

/// Holds the answers by SQL; what it does not know is an empty table.
class Source : public Lagomare::QuerySource {
public:
  std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) override {
    EXPECT_EQ(open, 0) << "the answer before is still being read";
    asked.push_back(sql + (flag ? "|1" : "|0"));
    if (sql == "refused")
      throw LineLost{8};
    if (sql == "null")
      return nullptr;
    if (sql == "unopened")
      return std::make_unique<std::ifstream>("no such file");
    return std::make_unique<Answer>(answers[sql], sql == "cut", open);
  }

  std::map<std::string, std::string> answers;
  std::vector<std::string> asked;
  int open = 0;
};

class QuerySourceTest : public WorkingDirectoryTest {
protected:
  QuerySourceTest() { LagomareProjectManager::getInstance("a.db")->setSource(source); }

  static QueryResult ask(const std::string& sql) { return LagomareProjectManager::getInstance()->query(sql, true); }

  std::shared_ptr<Source> source = std::make_shared<Source>();
};

} // namespace

TEST_F(QuerySourceTest, ServesAnImportThatFindsIt) {
  write("query-result.txt", "the host's own");
  source->answers["select * from DefGerais"] = "0 1 . 1 2000 1 .\n";
  source->answers["select NumNo from Pontos where Tipo = 1"] = "4 .\n";
  source->answers["select * from Pontos where Tipo = 1"] = "4 Foz 1 500000 8000000 .\n";
  const auto result = LagomareProjectLoader::load2010("no executable", "other.db", {});
  ASSERT_EQ(result.status, 3U);
  EXPECT_EQ(find(result.scenario, 4)->getName(), "Foz");
  EXPECT_EQ(source->asked.front(), "select * from DefGerais|0");
  EXPECT_EQ(source->asked.back(), "select * from Links|0");
  EXPECT_EQ(source.use_count(), 1) << "the channel went with the import";
  EXPECT_EQ(read("query-result.txt"), "the host's own");
  EXPECT_FALSE(std::filesystem::exists("script.bat"));
}

TEST_F(QuerySourceTest, PassesItsExceptionsOnAndKeepsNothingOfHalfAnAnswer) {
  source->answers = {{"cut", "1 2 .\n"}, {"whole", "3 4 .\n"}};
  EXPECT_THAT([] { ask("cut"); }, Throws<LineLost>(Field(&LineLost::code, 7)));
  EXPECT_THAT([] { static_cast<void>(LagomareProjectManager::getInstance()->queryValues("cut", false)); },
              Throws<LineLost>(Field(&LineLost::code, 7)));
  EXPECT_THAT([] { ask("refused"); }, Throws<LineLost>(Field(&LineLost::code, 8)));
  EXPECT_EQ(ask("whole"), (QueryResult{{3, {{"3", "4"}}}}));
  EXPECT_EQ(source->asked.back(), "whole|1");
}

TEST_F(QuerySourceTest, GivesNoEmptyTableForAStreamThatCannotBeRead) {
  for (const char* sql : {"null", "unopened"})
    EXPECT_THAT([sql] { ask(sql); },
                ThrowsMessage<std::runtime_error>(EndsWith("no answer that can be read: " + std::string(sql))));
}

TEST_F(QuerySourceTest, LetsErrorsTellTheRowOfEveryKindOfTable) {
  const std::string nodes = "select NumPonto, Nome, Coord_X, Coord_Y";
  const std::map<std::string, std::string> project{
      {"select FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul from Tk_Gerais", "01/01/2000 1 1 0 .\n"},
      {"select * from LgmFrontEH", "1 0.5 .\n"},
      {"select NumPonto from Tk_Res_FEA", "1 .\n2 .\n"},
      {"select NumPonto from Tk_Dem_FEA", "3 .\n"},
      {nodes + ", VolMax, VolMin, VolIni, Subsist from Tk_Res_FEA", "1 R 5e5 8e6 0 0 0 0 .\n2 R 5e5 8e6 0 0 0 0 .\n"},
      {nodes + " from Tk_Dem_FEA", "3 D 5e5 8e6 .\n"}};
  const std::map<std::string, std::string> damages{
      {"select FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul from Tk_Gerais",
       "2 .\n3 .\n01/01/2000 x 1 0 .\n"},
      {"select * from LgmFrontEH", "1 0.5 .\n2 0.7 .\n3 x .\n"},
      {nodes + " from Tk_Dem_FEA", "9 D 5e5 8e6 .\n9 D 5e5 8e6 .\n3 D 5e5 x .\n"},
      {"select NumPto, Valor from LgmVazNat ", "2 1 .\n1 1 .\n2 x .\n"},
      {"select * from LgmResCAV", "2 1 1 1 .\n1 1 1 1 .\n2 1 x 1 .\n"},
      {"select NumPto, Valor from LgmResEvap", "2 1 .\n1 1 .\n2 x .\n"},
      {"select NumPto, Valor from LgmResPrior", "2 1 .\n1 1 .\n2 x .\n"},
      {"select NumPto, Valor from LgmResVmetaSC where EstHidr = 2", "2 1 .\n1 1 .\n2 .\n"}};
  for (const auto& [sql, answer] : damages) {
    source->answers = project;
    source->answers[sql] = answer;
    try {
      LagomareProjectManager::getInstance("a.db")->setSource(source);
      static_cast<void>(LagomareProjectLoader::load2013("", "", {}));
      ADD_FAILURE() << sql;
    } catch (const Lagomare::FieldError& error) {
      EXPECT_EQ(error.row(), 3U) << sql;
    }
  }
}
