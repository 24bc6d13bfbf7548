#include "model/ElementFactory.h"
#include "tools/export/report/HtmlText.h"
#include "tools/export/report/LabelPlacer.h"
#include "tools/export/report/LinkLine.h"
#include "tools/export/report/ReportParts.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <gmock/gmock.h>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

using namespace LagomareTools;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::shared_ptr<Node> junction(std::uint32_t id, const std::string& name, double x, double y) {
  auto node = std::dynamic_pointer_cast<Node>(ElementFactory::make(ElementType::Junction));
  node->bdId = id;
  node->setName(name);
  node->setX(x);
  node->setY(y);
  return node;
}

std::string written(const std::function<void(FileWriter&)>& write) {
  std::FILE* const file = std::tmpfile();
  FileWriter out(file, "a test's file");
  write(out);
  out.flush();
  std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
  std::rewind(file);
  text.resize(std::fread(text.data(), 1, text.size(), file));
  std::fclose(file);
  return text;
}

} // namespace

TEST(ReportTest, FiguresMeanTheSameInEveryCountry) {
  EXPECT_EQ(figureText(1999), "1999");
  EXPECT_EQ(figureText(-1234567.125), "-1\u202F234\u202F567.125");
  EXPECT_EQ(figureText(std::numeric_limits<double>::infinity()), "");
  EXPECT_EQ(roundedText(2.0 / 3), "0.6667");
  EXPECT_EQ(roundedText(123456.789), "123\u202F457");
  EXPECT_EQ(roundedText(-1e-9), "0");
  EXPECT_EQ(htmlText("<a href='x'>\"São\" & \xFF"), "&lt;a href=&#39;x&#39;&gt;&quot;São&quot; &amp; \uFFFD");
  EXPECT_EQ(shortened("Ribeirão", 6), "Ribei…");
  EXPECT_EQ(shortened("São", 3), "São");
}

TEST(ReportTest, TheMapIsTrueToScaleAndLeavesOutWhatWouldShrinkIt) {
  Network network;
  for (const auto& [x, y] : std::vector<MapPoint>{{-44, -60}, {-42, -60}, {-44, -61}, {-43, -60.5}, {-43.2, -60.1}})
    network.nodes.push_back(junction(1, "", x, y));
  network.nodes.push_back(junction(2, "", 0, 0));
  network.nodes.push_back(junction(3, "", std::nan(""), 0));
  const NetworkMap map(network);
  EXPECT_THAT(map.missing(), ElementsAre(network.nodes[6].get(), network.nodes[5].get()));
  const auto at = [&](std::size_t index) { return *map.find(network.nodes[index].get()); };
  // Two degrees of longitude at 60.5 degrees south are as long as 0.985 degrees of latitude.
  EXPECT_NEAR(at(1).x - at(0).x, 0.985 * (at(2).y - at(0).y), 0.5);
  EXPECT_NEAR((at(2).y - at(0).y) * map.kilometresPerUnit(), 111, 1);
}

TEST(ReportTest, AnArrowLiesOnTheRightOfALinkThatIsBowedThere) {
  const MapPoint arrow = LinkLine({10, 20}, {50, 50}, 1).at(0.5);
  EXPECT_DOUBLE_EQ(arrow.x, 20.4);
  EXPECT_DOUBLE_EQ(arrow.y, 47.8);
}

TEST(ReportTest, LabelsDoNotBuryEachOther) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> place(0, 500);
  std::vector<MapPoint> nodes(300);
  LabelPlacer labels(nodes.size(), 500);
  for (MapPoint& node : nodes)
    labels.addSymbol(node = {place(random), place(random)}, 7);
  struct LabelBox {
    double left, top, right, bottom;
    std::size_t owner;
    unsigned level;
  };
  std::vector<LabelBox> boxes; // around 0/0
  for (std::size_t index = 0; index < nodes.size(); ++index)
    if (const auto label = labels.place(nodes[index], 7, 12)) {
      const double width = 12 * LabelPlacer::textWidth;
      const double left = label->x - (*label->anchor == 's' ? 0 : *label->anchor == 'e' ? width : width / 2);
      boxes.push_back({left, label->y - 9, left + width, label->y + 2, index, label->level});
    }
  EXPECT_GT(boxes.size(), 290);
  for (unsigned level = 0; level < numOfMapLevels; ++level) {
    const auto at = [&](const LabelBox& box) {
      const MapPoint node = nodes[box.owner];
      const double pixels = pixelsPerUnit(level);
      return LabelBox{node.x * pixels + box.left,
                      node.y * pixels + box.top,
                      node.x * pixels + box.right,
                      node.y * pixels + box.bottom,
                      box.owner,
                      box.level};
    };
    std::size_t buried = 0;
    for (const LabelBox& one : boxes)
      for (const LabelBox& other : boxes)
        if (one.owner < other.owner && one.level <= level && other.level <= level) {
          const LabelBox a = at(one);
          const LabelBox b = at(other);
          buried += a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
        }
    EXPECT_EQ(buried, 0U) << "at level " << level;
  }
}

TEST(ReportTest, FaultsAreGroupedAndLeadToTheirElement) {
  Network network;
  network.nodes.push_back(junction(21, "Açude <b>", 0, 0));
  std::vector<Fault> faults;
  faults.push_back({"odd-name", Severity::note, "Tk_Pas_FEA", 1, 1, 21, "Açude <b>", "Nome", {}, "Odd.", "Mend."});
  for (std::size_t row = 1; row <= 60; ++row)
    faults.push_back({"not-a-number", Severity::warning, "LgmVazNat", row, 2, 99, "", "Valor", "<", "\"<\"", "Mend."});
  const auto html = [&](const std::optional<std::vector<Fault>>& found) {
    return written([&](FileWriter& out) { writeReportFaults(out, found, network); });
  };
  const std::string all = html(faults);
  EXPECT_LT(all.find("<b>60 warnings</b>"), all.find("<b>1 note</b>"));
  EXPECT_LT(all.find("<b>Not a number</b> <span>60 warnings"), all.find("<b>Odd name</b>"));
  EXPECT_THAT(all, HasSubstr("LgmVazNat, row 1 and 1 more, column Valor<td>99<td>&quot;&lt;&quot;"));
  EXPECT_THAT(all, HasSubstr("<p>10 more"));
  EXPECT_THAT(all, HasSubstr("<a href=\"#node-21\">Açude &lt;b&gt; (21)</a>"));
  EXPECT_THAT(html(std::vector<Fault>()), HasSubstr("no faults"));
  EXPECT_THAT(html(std::nullopt), HasSubstr("not checked"));
}
