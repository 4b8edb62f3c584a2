#include "RegmarkLayer.h"

#include <gtest/gtest.h>

#include "Drawing.h"

namespace Vandrell::Corvane {
namespace {

using Titles = std::vector<std::string>;

struct Case {
  const char* what;
  Titles before;  // from the bottom up; the first layer is renamed
  const char* refuse;
  AIErr result;
  Titles after;  // from the top down
};

TEST(ClearRegmarkLayer, TakesAwayTheLayerOfThatTitle) {
  const Case cases[] = {
      {"none there", {"Artwork"}, nullptr, kNoErr, {"Artwork"}},
      {"another case is another title", {"Artwork", "REGMARK"}, nullptr, kNoErr, {"REGMARK", "Artwork"}},
      {"above others", {"Artwork", "Regmark"}, nullptr, kNoErr, {"Artwork"}},
      {"below others", {"Regmark", "Artwork"}, nullptr, kNoErr, {"Artwork"}},
      {"the only one", {"Regmark"}, nullptr, kNoErr, {""}},
      {"not found", {"Regmark"}, "AI Layer Suite:GetLayerByTitle", kSPCanceledByHostError, {"Regmark"}},
      {"no successor", {"Regmark"}, "AI Layer Suite:InsertLayer", kSPCanceledByHostError, {"Regmark"}},
      {"no text", {"Regmark"}, "AI Unicode String Suite:New", kSPCanceledByHostError, {"Regmark"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Drawing drawing;
    drawing.document().editLayer(drawing.document().state().layers.front()).title = c.before.front();
    for (std::size_t i = 1; i < c.before.size(); ++i) drawing.addLayer(c.before[i]);
    drawing.addRectangle(0, 0, 10, 10);
    if (c.refuse != nullptr) {
      ASSERT_EQ(drawing.host.refusal().add(c.refuse), "");
    }
    EXPECT_EQ(ClearRegmarkLayer(), c.result);
    EXPECT_EQ(drawing.layerTitles(), c.after);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
