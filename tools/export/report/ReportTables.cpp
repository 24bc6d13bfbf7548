#include "tools/export/report/HtmlText.h"
#include "tools/export/report/NetworkDrawing.h"
#include "tools/export/report/ReportParts.h"

#include <fmt/format.h>
#include <initializer_list>
#include <memory>
#include <string>

namespace LagomareTools {

namespace {

std::string number(const std::string& text) { return "<td class=\"number\">" + text; }

std::string named(const Element& element, const std::string& name) {
  return fmt::format(R"(<a href="#{}">{}</a>)", keyOf(element), htmlText(name));
}

/// Name, kind and id; an element without a name is called by its id.
std::string identity(const Element& element, const char* remark = "") {
  const auto& kind = *element.getElementType();
  const std::string& name = element.getName();
  return fmt::format(R"(<tr data-key="{}"><th scope="row" class="mark kind-{}">{}<td>{}{}<td class="number">{})",
                     keyOf(element), kind.id, named(element, name.empty() ? kind.name : name), htmlText(kind.name),
                     remark, element.bdId);
}

std::string endOf(const std::weak_ptr<Node>& end) {
  const auto node = end.lock();
  return "<td>" + (node ? htmlText(node->getName().empty() ? std::to_string(node->bdId) : node->getName()) : "");
}

std::string rowOf(const Scenario& scenario, const Node& node) {
  const auto settings = settingsOf(scenario, node);
  const auto* const info = reservoirInfoOf(node);
  return identity(node) + number(settings ? std::to_string(settings->priority) : "") +
         number(info == nullptr ? "" : figureText(info->maximumVolume)) +
         number(roundedText(meanOf(node, SerieType::NaturalAffluentFlow))) +
         number(roundedText(meanOf(node, SerieType::WaterDemand)));
}

std::string rowOf(const Link& link) {
  return identity(link, link.getIsBidirectional() ? ", two-way" : "") + endOf(link.upstream) + endOf(link.downstream) +
         number(figureText(constantOf(link, SerieType::LinkLimitSerie))) +
         number(figureText(constantOf(link, SerieType::LinkLoss)));
}

struct Column {
  const char* label;
  const char* unit;
  bool isNumber;
};

void beginTable(FileWriter& out, const char* name, const char* title, std::initializer_list<Column> columns) {
  out.write(fmt::format("<div class=\"table\" id=\"{}\">\n<table><caption>{}</caption>\n<thead><tr>", name, title));
  for (const Column& column : columns)
    out.write(fmt::format(R"(<th scope="col"{}><span>{}</span>{})", column.isNumber ? R"( class="number")" : "",
                          column.label, *column.unit == '\0' ? "" : fmt::format(" <small>{}</small>", column.unit)));
  out.write("</thead>\n<tbody>\n");
}

constexpr const char* endOfTable = "</tbody></table>\n</div>\n";

} // namespace

void writeReportTables(FileWriter& out, const Scenario& scenario, const Network& network) {
  beginTable(out, "nodes", "Nodes",
             {{"Name", "", false},
              {"Kind", "", false},
              {"Id", "", true},
              {"Priority", "", true},
              {"Maximum volume", "hm³", true},
              {"Mean natural flow", "m³/s", true},
              {"Mean demand", "m³/s", true}});
  for (const auto& node : network.nodes)
    out.write(rowOf(scenario, *node) + "\n");
  out.write(endOfTable);
  beginTable(out, "links", "Links",
             {{"Name", "", false},
              {"Kind", "", false},
              {"Id", "", true},
              {"From", "", false},
              {"To", "", false},
              {"Flow limit", "m³/s", true},
              {"Loss", "%", true}});
  for (const auto& link : network.links)
    out.write(rowOf(*link) + "\n");
  out.write(endOfTable);
}

} // namespace LagomareTools
