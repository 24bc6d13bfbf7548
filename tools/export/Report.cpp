#include "tools/export/Report.h"

#include "tools/export/report/HtmlText.h"
#include "tools/export/report/NetworkDrawing.h"
#include "tools/export/report/ReportPage.h"
#include "tools/export/report/ReportParts.h"

#include <filesystem>
#include <string_view>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

void writePart(FileWriter& out, std::string_view name, const ExportInput& input, const Network& network) {
  const Scenario& scenario = *input.imported.result.scenario;
  if (name == "project")
    out.write(htmlText(fs::u8path(input.projectName).filename().u8string()));
  else if (name == "facts")
    writeReportFacts(out, input);
  else if (name == "counts")
    writeReportCounts(out, network);
  else if (name == "faults")
    writeReportFaults(out, input.faults, network);
  else if (name == "network")
    writeNetworkDrawing(out, network);
  else if (name == "tables")
    writeReportTables(out, scenario, network);
  else if (name == "data")
    writeReportData(out, scenario, network);
}

} // namespace

void writeReport(FileWriter& out, const ExportInput& input) {
  constexpr std::string_view opening = "<!--part ";
  constexpr std::string_view closing = "-->";
  const Network network = networkOf(*input.imported.result.scenario);
  std::string_view page = reportPage();
  for (std::size_t place = page.find(opening); place != std::string_view::npos; place = page.find(opening)) {
    out.write(page.substr(0, place));
    page.remove_prefix(place + opening.size());
    const std::size_t end = page.find(closing);
    writePart(out, page.substr(0, end), input, network);
    page.remove_prefix(end + closing.size());
  }
  out.write(page);
}

} // namespace LagomareTools
