// The line types that ship with the product.
#include <gtest/gtest.h>

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

struct Definition {
  std::string group;
  std::string name;
  ordered_json paint;
};

ordered_json File() {
  std::ifstream stream(std::string(CORVANE_SOURCE) + "/plugin/bundle/CurveLayerDefinition.json");
  return ordered_json::parse(stream);
}

std::vector<Definition> Definitions() {
  std::vector<Definition> definitions;
  const ordered_json file = File();
  for (const auto& [group, types] : file.at("Groups").items()) {
    for (const ordered_json& type : types) {
      EXPECT_TRUE(type.at("isCustomDataModel").get<bool>());
      definitions.push_back({group, type.at("name"), type.at("customColor")});
    }
  }
  return definitions;
}

using RGB = std::array<double, 3>;

RGB ScreenColor(const ordered_json& paint) {
  const std::vector<double> inks = paint.at("cmyk");
  RGB color{};
  for (std::size_t i = 0; i < color.size(); ++i) color[i] = (1 - inks.at(i)) * (1 - inks.at(3));
  return color;
}

double Distance(const RGB& a, const RGB& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(LineTypeDefinitions, BeginWithTheDefaultGroup) {
  const ordered_json file = File();
  EXPECT_EQ(file.at("Default"), "Standard");
  EXPECT_EQ(file.at("Groups").begin().key(), "Standard");
}

// A name is that of a layer and a spot colour: two line types of one name could not be told apart.
TEST(LineTypeDefinitions, HaveUsableNamesThatDiffer) {
  std::set<std::string> names;
  for (const Definition& definition : Definitions()) {
    EXPECT_LE(UTF16Length(definition.name).value(), kLineTypeNameLength) << definition.name;
    EXPECT_EQ(definition.name.find(kNameSeparator), std::string::npos) << definition.name;
    EXPECT_TRUE(names.insert(definition.name).second) << definition.name;
  }
}

TEST(LineTypeDefinitions, AreSpotColors) {
  for (const Definition& definition : Definitions()) {
    EXPECT_EQ(definition.paint.at("kind"), 0) << definition.name;
    EXPECT_EQ(definition.paint.at("flag"), 1) << definition.name;
    const std::vector<double> inks = definition.paint.at("cmyk");
    EXPECT_EQ(inks.size(), 4U) << definition.name;
    for (const double ink : inks) EXPECT_TRUE(ink >= 0 && ink <= 1) << definition.name;
  }
}

// On white, and not taken for a register mark, which is black.
TEST(LineTypeDefinitions, CanBeToldApartInTheirGroup) {
  std::vector<Definition> seen;
  for (Definition& definition : Definitions()) {
    const RGB color = ScreenColor(definition.paint);
    EXPECT_GT(Distance(color, {1, 1, 1}), 0.4) << definition.name;
    EXPECT_GT(Distance(color, {0, 0, 0}), 0.4) << definition.name;
    for (const Definition& other : seen) {
      if (other.group != definition.group) continue;
      EXPECT_GT(Distance(color, ScreenColor(other.paint)), 0.3) << definition.name << ", " << other.name;
    }
    seen.push_back(std::move(definition));
  }
}

}  // namespace
}  // namespace texts
