// The line types that ship with the product.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "LineTypeNames.h"
#include "UTF8.h"

namespace texts {
namespace {

using nlohmann::ordered_json;

using RGB = std::array<double, 3>;

double Distance(const RGB& a, const RGB& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// By name, which is that of a layer and a spot colour, and in each group by colour: on white, and not taken
// for a register mark, which is black. Art is known again by RGB definitions only.
TEST(LineTypeDefinitions, BeginWithTheDefaultAndAreSpotColorsThatCanBeToldApart) {
  const ordered_json file = ordered_json::parse(
      std::ifstream(std::string(CORVANE_SOURCE) + "/plugin/bundle/CurveLayerDefinition.json"));
  EXPECT_EQ(file.at("Default"), "Standard");
  EXPECT_EQ(file.at("Groups").begin().key(), "Standard");
  std::set<std::string> names;
  for (const ordered_json& group : file.at("Groups")) {
    std::vector<RGB> seen;
    for (const ordered_json& type : group) {
      const std::string name = type.at("name");
      EXPECT_LE(UTF16Length(name).value(), kLineTypeNameLength) << name;
      EXPECT_EQ(name.find(kNameSeparator), std::string::npos) << name;
      EXPECT_TRUE(names.insert(name).second) << name;
      EXPECT_EQ(type.at("isCustomDataModel"), true) << name;
      EXPECT_EQ(type.at("customColor").at("kind"), 1) << name;
      EXPECT_EQ(type.at("customColor").at("flag"), 1) << name;
      const RGB color = type.at("customColor").at("rgb");
      for (const double component : color) EXPECT_TRUE(component >= 0 && component <= 1) << name;
      EXPECT_GT(std::min(Distance(color, {1, 1, 1}), Distance(color, {0, 0, 0})), 0.4) << name;
      for (const RGB& other : seen) EXPECT_GT(Distance(color, other), 0.3) << name;
      seen.push_back(color);
    }
  }
}

}  // namespace
}  // namespace texts
