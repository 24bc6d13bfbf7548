#include "tools/check/result/CheckJson.h"

#include "tools/system/Text.h"

#include <nlohmann/json.hpp>

namespace LagomareTools {

namespace {

using Json = nlohmann::ordered_json;

constexpr int formatVersion = 1;

Json jsonOf(const Fault& fault) {
  Json json{{"code", fault.code}, {"severity", nameOf(fault.severity)}};
  const auto addText = [&json](const char* key, const std::string& text) {
    if (!text.empty())
      json[key] = text;
  };
  addText("table", fault.table);
  if (fault.row) {
    json["row"] = *fault.row;
    json["rows"] = fault.rows;
  }
  if (fault.id)
    json["id"] = *fault.id;
  addText("element", fault.element);
  addText("column", fault.column);
  if (fault.value)
    json["value"] = *fault.value;
  json["message"] = plainText(fault.message);
  json["remedy"] = fault.remedy;
  return json;
}

} // namespace

std::string jsonOf(const CheckResult& result, const std::string& project) {
  Json json{{"format", "lagomare-check"},
            {"version", formatVersion},
            {"project", plainText(project)},
            {"dialect", nameOf(result.dialect)},
            {"errors", result.count(Severity::error)},
            {"warnings", result.count(Severity::warning)},
            {"notes", result.count(Severity::note)},
            {"faults", Json::array()},
            {"tables", Json::array()}};
  for (const Fault& fault : result.faults)
    json["faults"].push_back(jsonOf(fault));
  for (const TableCount& table : result.tables)
    json["tables"].push_back(
        {{"table", table.table}, {"rows", table.rows}, {"taken", table.taken}, {"notTaken", table.rows - table.taken}});
  if (result.notRead) {
    json["notRead"] = Json::array();
    for (const auto& [table, columns] : *result.notRead)
      json["notRead"].push_back({{"table", table}, {"columns", columns ? Json(*columns) : Json(nullptr)}});
  }
  return json.dump(1) + '\n';
}

} // namespace LagomareTools
