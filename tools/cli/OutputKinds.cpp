#include "tools/cli/OutputKinds.h"

#include "tools/export/CsvExport.h"
#include "tools/export/GeoJsonExport.h"
#include "tools/export/GeoPackageExport.h"
#include "tools/export/JsonExport.h"
#include "tools/export/Report.h"
#include "tools/export/WorkbookExport.h"

namespace LagomareTools {

namespace {

void writeJsonFile(OutputFile& file, const ExportInput& input) { writeJson(file.writer(), input.imported); }

void writeGeoJsonFile(OutputFile& file, const ExportInput& input) {
  writeGeoJson(file.writer(), *input.imported.result.scenario);
}

void writeGeoPackageFile(OutputFile& file, const ExportInput& input) { writeGeoPackage(file.path(), input); }

void writeWorkbookFile(OutputFile& file, const ExportInput& input) { writeWorkbook(file.path(), input); }

void writeHtmlFile(OutputFile& file, const ExportInput& input) { writeReport(file.writer(), input); }

template <std::size_t index>
OutputPart csvPart() {
  return {csvTables[index].fileName,
          [](OutputFile& file, const ExportInput& input) { writeCsv(file.writer(), csvTables[index].table, input); }};
}

} // namespace

const std::vector<OutputKind>& outputKinds() {
  static const std::vector<OutputKind> kinds{
      {"--json", "FILE", "Write the whole scenario; - is standard output", true, true, {{"", writeJsonFile}}},
      {"--geojson", "FILE", "Write the network for a GIS; - is standard output", true, false, {{"", writeGeoJsonFile}}},
      {"--gpkg", "FILE", "Write network, series and curves as a GeoPackage", false, false, {{"", writeGeoPackageFile}}},
      {"--xlsx", "FILE", "Write a workbook", false, false, {{"", writeWorkbookFile}}},
      {"--html", "FILE", "Write a report to look at", false, false, {{"", writeHtmlFile}}},
      {"--csv",
       "DIR",
       "Write elements.csv, links.csv, series.csv and curves.csv into DIR",
       false,
       false,
       {csvPart<0>(), csvPart<1>(), csvPart<2>(), csvPart<3>()}}};
  return kinds;
}

} // namespace LagomareTools
