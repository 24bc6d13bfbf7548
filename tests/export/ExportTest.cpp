#include "support/CommandTest.h"
#include "support/Program.h"

#include <nlohmann/json.hpp>
#include <string>

using nlohmann::json;
using testing::HasSubstr;

class ExportTest : public CommandTest {
protected:
  static json exported(const std::string& option) {
    const Ending ending = import({"basin.db", option, "-"});
    EXPECT_EQ(ending.exitCode, 0) << ending.err;
    return json::parse(ending.out);
  }
  static json find(const json& list, int id) {
    for (const json& entry : list)
      if (entry["id"] == id)
        return entry;
    return nullptr;
  }
};

TEST_F(ExportTest, JsonHoldsTheNumbersOfTheTables) {
  project();
  const json scenario = exported("--json");
  EXPECT_EQ(scenario["scenario"], json::parse(R"({"id": 1, "name": "Scenario1", "begin": "2000-01-01",
                                                  "end": "2000-12-01", "periodicity": "Mensal"})"));
  EXPECT_EQ(scenario["hydrologicalState"],
            json::parse(R"({"kind": 1, "name": "Padrão", "boundaries": [0.5], "states": 2})"));
  const json reservoir = find(scenario["nodes"], 1);
  EXPECT_EQ(reservoir["name"], "Açude Velho");
  EXPECT_EQ(reservoir["reservoir"], json::parse(R"({"initialVolume": 50, "minimumVolume": 10, "maximumVolume": 100.5,
                            "volumeFlag": false, "areaVolumeCurve": [[400, 0.1, 10], [410, 3, 100.5]]})"));
  EXPECT_EQ(reservoir["settings"]["priority"], 7);
  EXPECT_EQ(reservoir["settings"]["hydrologicalStateSystem"], true);
  EXPECT_EQ(reservoir["settings"]["states"][1]["priority"], 8);
  EXPECT_EQ(reservoir["settings"]["states"][1]["series"]["values"][0], 0.25);
  EXPECT_EQ(reservoir["series"][3], json::parse(R"({"kind": 3, "name": "Volume meta", "unit": "adimensional",
              "begin": "2000-01-01", "end": "2000-12-01", "values": [1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1]})"));
  const json junction = find(scenario["nodes"], 21);
  EXPECT_EQ(junction["series"][0]["values"], json({0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1, 1.1, 1.2}));
  EXPECT_FALSE(junction.contains("settings"));
  EXPECT_EQ(find(scenario["nodes"], 12)["series"][1], json::parse(R"({"kind": 5, "name": "Demanda", "unit": "m³/s",
              "begin": null, "end": null, "values": []})")); // a drain's series is empty
  const json link = find(scenario["links"], 1);
  EXPECT_EQ(link["kind"], 10);
  EXPECT_EQ(link["bidirectional"], true);
  EXPECT_EQ(link["upstream"], 1);
  EXPECT_EQ(link["downstream"], 2);
}

TEST_F(ExportTest, OddValuesStayValid) {
  project("update LgmVazNat set Valor = 9e999 where Data = 1; update LgmVazNat set Valor = 1e300 where Data = 2;"
          "update Tk_Pas_FEA set Nome = cast(x'41FF0942C2A043' as text)");
  const json junction = find(exported("--json")["nodes"], 21);
  EXPECT_EQ(junction["name"], "A\xEF\xBF\xBD B C");
  EXPECT_EQ(junction["series"][0]["values"][0], nullptr);
  EXPECT_EQ(junction["series"][0]["values"][1], 1e300);
  EXPECT_EQ(import({"basin.db", "--csv", "tables"}).exitCode, 0);
  EXPECT_THAT(readFile("tables/series.csv"), HasSubstr(",2000-01-01,\r\n"));
}

TEST_F(ExportTest, TheReportShowsTheFiguresOfAReservoir) {
  EXPECT_EQ(import({project(), "--quiet", "--no-check", "--html", "report.html"}).exitCode, 0);
  EXPECT_THAT(readFile("report.html"),
              HasSubstr("[[\"Maximum volume\",\"100.5 hm³\"],[\"Minimum volume\",\"10 hm³\"],[\"Initial volume\",\"50 "
                        "hm³\"],[\"Priority\",\"7\"],[\"Priority by state\",\"7, 8\"],"));
}

TEST_F(ExportTest, CsvIsForProgramsOrForBrazilianSpreadsheets) {
  project("update Tk_Lnk_FEA set Nome = 'C; d, e' where UID = 3");
  EXPECT_EQ(import({"basin.db", "--quiet", "--csv", "tables"}).exitCode, 0);
  EXPECT_EQ(readFile("tables/curves.csv"),
            "reservoir_id,point,level_m,area_km2,volume_hm3\r\n1,1,400,0.1,10\r\n1,2,410,3,100.5\r\n");
  EXPECT_THAT(readFile("tables/elements.csv"), HasSubstr("\r\n2,0,Reservatório,\"Um, \"\"dois\"\"\","));
  EXPECT_THAT(readFile("tables/links.csv"), HasSubstr("\r\n3,11,Trecho natural,\"C; d, e\",2,21,false,12.5,35\r\n"));
  EXPECT_EQ(import({"basin.db", "--quiet", "--csv", "tables", "--csv-format", "excel-br"}).exitCode, 0);
  EXPECT_EQ(readFile("tables/curves.csv"), "\xEF\xBB\xBFreservoir_id;point;level_m;area_km2;volume_hm3\r\n"
                                           "1;1;400;0,1;10\r\n1;2;410;3;100,5\r\n");
  EXPECT_THAT(readFile("tables/elements.csv"), HasSubstr("\r\n2;0;Reservatório;\"Um, \"\"dois\"\"\";"));
  EXPECT_THAT(readFile("tables/links.csv"), HasSubstr("\r\n3;11;Trecho natural;\"C; d, e\";2;21;false;12,5;35\r\n"));
}
