// Paints and definitions of custom colours in trees.
#include "ColorTree.h"

#include <boost/property_tree/json_parser.hpp>
#include <cmath>
#include <cstring>
#include <random>
#include <sstream>

#include "CustomColorTree.h"
#include "PaintFixture.h"

namespace Vandrell::Corvane {
namespace {

using boost::property_tree::ptree_error;

LineTypeTree FromJSON(const std::string& text) {
  std::istringstream stream(text);
  LineTypeTree tree;
  boost::property_tree::read_json(stream, tree);
  return tree;
}

std::string ToJSON(const LineTypeTree& tree) {
  std::ostringstream stream;
  boost::property_tree::write_json(stream, tree, false);
  return stream.str();
}

// What an operation throws; "nothing" if it ends well.
template <typename Operation>
std::string Thrown(Operation operation) {
  try {
    operation();
  } catch (const ptree_error& error) {
    return error.what();
  }
  return "nothing";
}

bool SameBytes(const void* a, const void* b, std::size_t size) {
  return std::memcmp(a, b, size) == 0;
}

class ColorTree : public PaintFixture {
 protected:
  static std::string Written(const AIColor& color) {
    LineTypeTree tree;
    ColorToTree(tree, color);
    return ToJSON(tree);
  }
  static std::string Written(const AICustomColor& color) {
    LineTypeTree tree;
    CustomColorToTree(tree, color);
    return ToJSON(tree);
  }
};

TEST_F(ColorTree, WritesKindAndComponentsInOrder) {
  EXPECT_EQ(Written(Paint(kGrayColor, 0.1)), R"({"kind":"0","gray":["0.10000000000000001"]})"
                                             "\n");
  EXPECT_EQ(Written(Paint(kFourColor, 0, 1, 0.5, 0.25)), R"({"kind":"1","cmyk":["0","1","0.5","0.25"]})"
                                                         "\n");
  EXPECT_EQ(Written(Paint(kThreeColor, 1, 0, 0.5)), R"({"kind":"5","rgb":["1","0","0.5"]})"
                                                    "\n");
  EXPECT_EQ(Written(Paint(kNoneColor)), "{\"kind\":\"6\"}\n");
  AICustomColor lab = Definition(kCustomLabColor, 50, -20, 30.5);
  lab.flag = -2;  // carried as it is
  EXPECT_EQ(Written(lab), R"({"kind":"2","flag":"-2","lab":["50","-20","30.5"]})"
                          "\n");
  EXPECT_EQ(Written(Definition(kCustomThreeColor, 1)), R"({"kind":"1","flag":"1","rgb":["1","0","0"]})"
                                                       "\n");
  EXPECT_EQ(Written(CustomPaint(Definition(kCustomFourColor, 0, 1), 0.5)),
            R"({"kind":"3","custom":{"kind":"0","flag":"1","cmyk":["0","1","0","0"]}})"
            "\n");
}

TEST_F(ColorTree, SaysWhatItCantWrite) {
  const auto written = [](const auto& color) { return Thrown([&] { Written(color); }); };
  for (const int kind : {2, 4, 7, -1, 1000000}) {
    EXPECT_EQ(written(Paint(static_cast<AIColorTag>(kind))), "color type not supported") << kind;
  }
  for (const int kind : {3, -1, 1000000}) {
    EXPECT_EQ(written(Definition(static_cast<AICustomColorTag>(kind))), "invalid color mode") << kind;
  }
  EXPECT_EQ(written(Paint(kCustomColor)), "can't get custom color") << "a null handle";
  const AIColor custom = CustomPaint(Definition(kCustomFourColor));
  ASSERT_EQ(host.refusal().add("AI Custom Color Suite:GetCustomColor"), "");
  EXPECT_EQ(written(custom), "can't get custom color") << "refused";
}

struct ReadCase {
  const char* json;
  const char* thrown;  // the beginning of the text
};

template <typename Color, typename Reader>
void ExpectReading(const std::vector<ReadCase>& cases, Reader read) {
  for (const ReadCase& c : cases) {
    Color color;
    std::memset(static_cast<void*>(&color), 0, sizeof color);
    const Color untouched = color;
    const std::string thrown = Thrown([&] { read(FromJSON(c.json), color); });
    EXPECT_EQ(thrown.substr(0, std::strlen(c.thrown)), c.thrown) << c.json << ": " << thrown;
    if (thrown != "nothing") {
      EXPECT_TRUE(SameBytes(&color, &untouched, sizeof color)) << c.json;
    }
  }
}

constexpr char kNoSuchNode[] = "No such node";
constexpr char kNoNumber[] = "not a number";

TEST_F(ColorTree, ReadsPaintsStrictly) {
  ExpectReading<AIColor>(
      {
          {R"({"kind":6})", "nothing"},
          {R"({"kind":"6 ","other":[1]})", "nothing"},
          {R"({"KIND":1,"CMYK":["0",1,0.5,"2.5e-1"]})", "nothing"},
          {R"({"kind":1,"cmyk":{"c":0,"m":1,"x":0,"y":0}})", "nothing"},
          {R"({"kind":1,"cmyk":[0,1,0,0,7]})", "nothing"},
          {R"({"kind":0,"gray":[0.5,1]})", "nothing"},
          {R"({"kind":5,"rgb":[1e300,-5,0]})", "nothing"},
          {R"({"kind":6,"kind":1})", "nothing"},  // the first counts
          {R"({})", kNoSuchNode},
          {R"({"kid":6})", kNoSuchNode},
          {R"({"kind":""})", kNoNumber},
          {R"({"kind":[6]})", kNoNumber},
          {R"({"kind":"6x"})", kNoNumber},
          {R"({"kind":6.0})", kNoNumber},
          {R"({"kind":true})", kNoNumber},
          {R"({"kind":99999999999})", kNoNumber},
          {R"({"kind":2})", "invalid color"},
          {R"({"kind":3,"custom":{"kind":0,"flag":1,"cmyk":[0,0,0,0]}})", "invalid color"},
          {R"({"kind":4})", "invalid color"},
          {R"({"kind":7})", "invalid color"},
          {R"({"kind":-1})", "invalid color"},
          {R"({"kind":0})", kNoSuchNode},
          {R"({"kind":0,"grey":[0]})", kNoSuchNode},
          {R"({"kind":0,"gray":[]})", "invalid color"},
          {R"({"kind":0,"gray":0.5})", "invalid color"},
          {R"({"kind":1,"rgb":[0,0,0]})", kNoSuchNode},
          {R"({"kind":1,"cmyk":[0,0,0]})", "invalid color"},
          {R"({"kind":1,"cmyk":[0,0,0,"nan"]})", kNoNumber},
          {R"({"kind":1,"cmyk":[0,0,0,0,"x"]})", kNoNumber},
          {R"({"kind":1,"cmyk":[0,0,0,[0]]})", kNoNumber},
          {R"({"kind":5,"rgb":[0,0]})", "invalid color"},
          {R"({"kind":5,"rgb":[0,0,"inf"]})", kNoNumber},
          {R"({"kind":5,"rgb":[0,0,1e999]})", kNoNumber},
          {R"({"kind":5,"rgb":[0,0,null]})", kNoNumber},
          {R"({"kind":5,"rgb":[0,0,"1,5"]})", kNoNumber},
      },
      ColorFromTree);
}

TEST_F(ColorTree, ReadsDefinitionsStrictly) {
  ExpectReading<AICustomColor>(
      {
          {R"({"flag":1,"kind":0,"cmyk":[0,0,0,0]})", "nothing"},
          {R"({"kind":1,"flag":"-32768","rgb":[0,0,0,"1"]})", "nothing"},
          {R"({"kind":2,"flag":0,"Lab":[50,-200,1e5]})", "nothing"},
          {R"({"kind":1,"rgb":[0,0,0]})", kNoSuchNode},  // the flag is called for even where it is 0
          {R"({"flag":1,"rgb":[0,0,0]})", kNoSuchNode},
          {R"({"kind":9})", kNoSuchNode},  // before the kind is looked at
          {R"({"kind":1,"flag":32768,"rgb":[0,0,0]})", kNoNumber},
          {R"({"kind":1,"flag":true,"rgb":[0,0,0]})", kNoNumber},
          {R"({"kind":"one","flag":0,"rgb":[0,0,0]})", kNoNumber},
          {R"({"kind":0,"flag":0,"rgb":[0,0,0]})", kNoSuchNode},
          {R"({"kind":0,"flag":0,"cmyk":[0,0,0]})", "invalid color values"},
          {R"({"kind":1,"flag":0,"rgb":[0,0]})", "invalid color values"},
          {R"({"kind":1,"flag":0,"rgb":""})", "invalid color values"},
          {R"({"kind":2,"flag":0,"lab":[0,0]})", "invalid color values"},
          {R"({"kind":2,"flag":0,"lab":[0,0,"nan"]})", kNoNumber},
          {R"({"kind":3,"flag":0})", "invalid color kind"},
          {R"({"kind":-1,"flag":0})", "invalid color kind"},
      },
      CustomColorFromTree);
}

TEST_F(ColorTree, TakesTheFirstComponents) {
  AIColor color{};
  ColorFromTree(FromJSON(R"({"kind":1,"cmyk":[0.1,0.2,0.3,0.4,0.5]})"), color);
  EXPECT_EQ(color.kind, kFourColor);
  EXPECT_EQ(color.c.f.cyan, 0.1);
  EXPECT_EQ(color.c.f.magenta, 0.2);
  EXPECT_EQ(color.c.f.yellow, 0.3);
  EXPECT_EQ(color.c.f.black, 0.4);
  AICustomColor custom{};
  CustomColorFromTree(FromJSON(R"({"kind":2,"flag":3,"lab":{"a":1,"b":2,"c":3}})"), custom);
  EXPECT_EQ(custom.flag, 3);
  EXPECT_EQ(custom.c.lab.l, 1);
  EXPECT_EQ(custom.c.lab.a, 2);
  EXPECT_EQ(custom.c.lab.b, 3);
}

// Zeroed records compare by their bytes: unions, padding and all.
TEST_F(ColorTree, RandomPaintsComeBackFromTheirTexts) {
  std::mt19937_64 random(17);
  std::uniform_real_distribution<double> exponent(-300, 300);
  const auto number = [&] {
    return random() % 4 == 0 ? 0.0 : std::pow(10, exponent(random)) * (random() % 2 ? 1 : -1);
  };
  for (int i = 0; i < 1000; ++i) {
    constexpr AIColorTag kinds[] = {kGrayColor, kFourColor, kThreeColor, kNoneColor};
    AIColor color{};
    color.kind = kinds[random() % 4];
    if (color.kind == kGrayColor) color.c.g = {number()};
    if (color.kind == kFourColor) color.c.f = {number(), number(), number(), number()};
    if (color.kind == kThreeColor) color.c.rgb = {number(), number(), number()};
    AIColor read{};
    ColorFromTree(FromJSON(Written(color)), read);
    ASSERT_EQ(Written(read), Written(color));
    ASSERT_TRUE(SameBytes(&read.c, &color.c, sizeof read.c)) << Written(color);

    AICustomColor custom = Definition(static_cast<AICustomColorTag>(random() % 3));
    custom.flag = static_cast<AICustomColorFlags>(random());
    if (custom.kind == kCustomFourColor) custom.c.f = {number(), number(), number(), number()};
    if (custom.kind == kCustomThreeColor) custom.c.rgb = {number(), number(), number()};
    if (custom.kind == kCustomLabColor) custom.c.lab = {number(), number(), number()};
    AICustomColor readCustom{};
    CustomColorFromTree(FromJSON(Written(custom)), readCustom);
    ASSERT_EQ(readCustom.flag, custom.flag);
    ASSERT_EQ(readCustom.kind, custom.kind);
    ASSERT_TRUE(SameBytes(&readCustom.c, &custom.c, sizeof custom.c)) << Written(custom);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
