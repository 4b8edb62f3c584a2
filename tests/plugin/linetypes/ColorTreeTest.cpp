// Paints and definitions of custom colours in trees.
#include "ColorTree.h"

#include <boost/property_tree/json_parser.hpp>
#include <cstring>
#include <sstream>

#include "CustomColorTree.h"
#include "PaintFixture.h"

namespace Vandrell::Corvane {
namespace {

LineTypeTree FromJSON(const std::string& text) {
  std::istringstream stream(text);
  LineTypeTree tree;
  boost::property_tree::read_json(stream, tree);
  return tree;
}

// What an operation throws; "nothing" if it ends well.
template <typename Operation>
std::string Thrown(Operation operation) {
  try {
    operation();
  } catch (const boost::property_tree::ptree_error& error) {
    return error.what();
  }
  return "nothing";
}

class ColorTree : public PaintFixture {
 protected:
  template <typename Color>
  static std::string Written(const Color& color) {
    LineTypeTree tree;
    if constexpr (std::is_same_v<Color, AIColor>) {
      ColorToTree(tree, color);
    } else {
      CustomColorToTree(tree, color);
    }
    std::ostringstream stream;
    boost::property_tree::write_json(stream, tree, false);
    return stream.str().substr(0, stream.str().size() - 1);
  }
};

TEST_F(ColorTree, WritesKindAndComponentsInOrder) {
  AICustomColor lab = Definition(kCustomLabColor, 50, -20, 30.5);
  lab.flag = -2;  // carried as it is
  const std::pair<std::string, const char*> cases[] = {
      {Written(Paint(kGrayColor, 0.1)), R"({"kind":"0","gray":["0.10000000000000001"]})"},
      {Written(Paint(kFourColor, 0, 1, 0.5, 0.25)), R"({"kind":"1","cmyk":["0","1","0.5","0.25"]})"},
      {Written(Paint(kThreeColor, 1, 0, 0.5)), R"({"kind":"5","rgb":["1","0","0.5"]})"},
      {Written(Paint(kNoneColor)), R"({"kind":"6"})"},
      {Written(lab), R"({"kind":"2","flag":"-2","lab":["50","-20","30.5"]})"},
      {Written(Definition(kCustomThreeColor, 1)), R"({"kind":"1","flag":"1","rgb":["1","0","0"]})"},
      {Written(CustomPaint(Definition(kCustomFourColor, 0, 1), 0.5)),
       R"({"kind":"3","custom":{"kind":"0","flag":"1","cmyk":["0","1","0","0"]}})"}};
  for (const auto& [written, expected] : cases) EXPECT_EQ(written, expected);
}

using ReadCases = std::vector<std::pair<const char*, std::string>>;  // JSON, the beginning of what is thrown

template <typename Color, typename Reader>
void ExpectReading(const ReadCases& cases, Reader read) {
  for (const auto& [json, expected] : cases) {
    Color color;
    std::memset(static_cast<void*>(&color), 0x55, sizeof color);
    const Color untouched = color;
    const std::string thrown = Thrown([&, text = json] { read(FromJSON(text), color); });
    EXPECT_EQ(thrown.substr(0, expected.size()), expected) << json << ": " << thrown;
    // Not a byte is written. NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
    EXPECT_EQ(std::memcmp(&color, &untouched, sizeof color) != 0, thrown == "nothing") << json;
  }
}

constexpr char kNoSuchNode[] = "No such node", kNoNumber[] = "not a number";

TEST_F(ColorTree, ReadsPaintsStrictly) {
  ExpectReading<AIColor>({{R"({"kind":"6 ","other":[1]})", "nothing"},
                          {R"({"kind":6,"kind":1})", "nothing"},  // the first counts
                          {R"({"KIND":1,"CMYK":["0",1,0.5,"2.5e-1"]})", "nothing"},
                          {R"({"kind":1,"cmyk":{"c":0,"m":1,"x":0,"y":0}})", "nothing"},
                          {R"({"kind":0,"gray":[0.5,1]})", "nothing"},
                          {R"({})", kNoSuchNode},
                          {R"({"kind":6.0})", kNoNumber},
                          {R"({"kind":3,"custom":{"kind":0,"flag":1,"cmyk":[0,0,0,0]}})", "invalid color"},
                          {R"({"kind":7})", "invalid color"},
                          {R"({"kind":0,"gray":0.5})", "invalid color"},
                          {R"({"kind":1,"cmyk":[0,0,0]})", "invalid color"},
                          {R"({"kind":1,"cmyk":[0,0,0,"nan"]})", kNoNumber},
                          {R"({"kind":1,"cmyk":[0,0,0,0,"x"]})", kNoNumber},
                          {R"({"kind":5,"rgb":[0,0,1e999]})", kNoNumber}},
                         ColorFromTree);
}

TEST_F(ColorTree, ReadsDefinitionsStrictly) {
  ExpectReading<AICustomColor>({{R"({"kind":1,"flag":"-32768","rgb":[0,0,0,"1"]})", "nothing"},
                                {R"({"kind":2,"flag":0,"Lab":[50,-200,1e5]})", "nothing"},
                                {R"({"kind":9})", kNoSuchNode},  // the flag, before the kind is looked at
                                {R"({"kind":1,"flag":32768,"rgb":[0,0,0]})", kNoNumber},
                                {R"({"kind":0,"flag":0,"cmyk":[0,0,0]})", "invalid color values"},
                                {R"({"kind":2,"flag":0,"lab":[0,0,"nan"]})", kNoNumber},
                                {R"({"kind":3,"flag":0})", "invalid color kind"}},
                               CustomColorFromTree);
}

}  // namespace
}  // namespace Vandrell::Corvane
