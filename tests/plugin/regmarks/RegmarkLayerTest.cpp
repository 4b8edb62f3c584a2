#include "RegmarkLayer.h"

#include <gtest/gtest.h>

#include "Drawing.h"

namespace Vandrell::Corvane {
namespace {

using Titles = std::vector<std::string>;

TEST(ClearRegmarkLayer, TakesAwayTheLayerOfThatTitle) {
  const struct {
    Titles before;       // from the bottom up; the first layer is renamed
    const char* refuse;  // null for nothing
    Titles after;        // from the top down
  } cases[] = {{{"Artwork"}, nullptr, {"Artwork"}},
               {{"Artwork", "REGMARK"}, nullptr, {"REGMARK", "Artwork"}},
               {{"Regmark", "Artwork"}, nullptr, {"Artwork"}},
               {{"Regmark"}, nullptr, {""}},
               {{"Regmark"}, "AI Layer Suite:InsertLayer", {"Regmark"}},
               {{"Artwork", "Regmark"}, nullptr, {"Artwork"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    Drawing drawing;
    drawing.document().editLayer(drawing.document().state().layers.front()).title = c.before.front();
    for (std::size_t i = 1; i < c.before.size(); ++i) drawing.addLayer(c.before[i]);
    drawing.addRectangle(0, 0, 10, 10);
    if (c.refuse != nullptr) {
      ASSERT_EQ(drawing.host.refusal().add(c.refuse), "");
    }
    EXPECT_EQ(ClearRegmarkLayer(), c.refuse != nullptr ? kSPCanceledByHostError : kNoErr);
    EXPECT_EQ(drawing.layerTitles(), c.after);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
