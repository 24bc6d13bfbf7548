#include "support/CommandTest.h"

#include <nlohmann/json.hpp>
#include <set>

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

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
  static json feature(const json& collection, int id, const char* type) {
    for (const json& entry : collection["features"])
      if (entry["properties"]["id"] == id && entry["geometry"]["type"] == type)
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

TEST_F(ExportTest, GeoJsonHasWhatAppliesToEachFeature) {
  project();
  const json collection = exported("--geojson");
  EXPECT_EQ(collection["type"], "FeatureCollection");
  // Programs take the id of the properties for a feature's own where it has none; the node 1 and the link 1 share it.
  std::set<json> ids;
  for (const json& entry : collection["features"])
    EXPECT_TRUE(ids.insert(entry["id"]).second) << entry;
  const json reservoir = feature(collection, 1, "Point");
  EXPECT_NEAR(reservoir["geometry"]["coordinates"][0], -45, 1e-6); // longitude first: the zone's middle
  EXPECT_NEAR(reservoir["geometry"]["coordinates"][1], -18.08, 0.02);
  EXPECT_EQ(reservoir["properties"],
            json::parse(R"({"id": 1, "kind": 0, "kindName": "Reservatório", "name": "Açude Velho",
              "priority": 7, "initialVolume": 50, "minimumVolume": 10, "maximumVolume": 100.5})"));
  EXPECT_NEAR(feature(collection, 21, "Point")["properties"]["meanNaturalFlow"], 0.65, 1e-12);
  EXPECT_EQ(feature(collection, 11, "Point")["properties"]["meanDemand"], 2);
  EXPECT_FALSE(feature(collection, 12, "Point")["properties"].contains("meanDemand"));
  const json link = feature(collection, 3, "LineString");
  EXPECT_EQ(link["geometry"]["coordinates"][1], feature(collection, 21, "Point")["geometry"]["coordinates"]);
  EXPECT_EQ(link["properties"], json::parse(R"({"id": 3, "kind": 11, "kindName": "Trecho natural", "name": "C",
              "upstream": 2, "downstream": 21, "flowLimit": 12.5, "lossPercent": 35, "bidirectional": false})"));
}

TEST_F(ExportTest, CsvTablesAreTidy) {
  project();
  EXPECT_EQ(import({"basin.db", "--quiet", "--csv", "tables"}).exitCode, 0);
  const std::string elements = readFile("tables/elements.csv");
  EXPECT_THAT(elements, StartsWith("id,kind,kind_name,name,longitude,latitude,priority,initial_volume,minimum_volume,"
                                   "maximum_volume\r\n1,0,Reservatório,Açude Velho,-45,"));
  EXPECT_THAT(elements, HasSubstr("\r\n2,0,Reservatório,\"Um, \"\"dois\"\"\","));
  EXPECT_THAT(elements, EndsWith(",,,,\r\n")); // a junction has neither priority nor volumes
  const std::string links = readFile("tables/links.csv");
  EXPECT_THAT(links, HasSubstr("\r\n1,10,Trecho artificial,Canal,1,2,true,,0\r\n"));
  EXPECT_THAT(links, HasSubstr("\r\n3,11,Trecho natural,C,2,21,false,12.5,35\r\n"));
  const std::string series = readFile("tables/series.csv");
  EXPECT_THAT(series, HasSubstr("\r\n21,7,,2,Vazão natural incremental,m³/s,,2000-03-01,0.3\r\n"));
  EXPECT_THAT(series, HasSubstr("\r\n1,0,Açude Velho,3,Volume meta,adimensional,2,2000-01-01,0.25\r\n"));
  EXPECT_THAT(series, HasSubstr("\r\n3,11,C,42,Limite de trecho,m³/s,,2000-12-01,12.5\r\n"));
  EXPECT_EQ(readFile("tables/curves.csv"),
            "reservoir_id,point,level,area,volume\r\n1,1,400,0.1,10\r\n1,2,410,3,100.5\r\n");
}
