// Layers, as the wrappers show them.
#include <gmock/gmock.h>

#include "FramePlugin.h"
#include "HMX_AILayer.h"
#include "LayerEnumerator.h"

namespace {

using testing::ElementsAre;

class Layers : public FrameTest {
 protected:
  std::vector<std::string> Walk(LayerEnumerator layers) {
    std::vector<std::string> titles;
    for (AILayerHandle handle = nullptr; layers.Next(&handle);) {
      char title[32] = "";
      EXPECT_EQ(HMX_AILayer(handle).GetTitle(title, sizeof title), kNoErr);
      titles.emplace_back(title);
    }
    return titles;
  }
};

TEST_F(Layers, AreWalkedFromTheTopByTheirProperties) {
  host::Document& document = OpenDocument({"Top", "Middle", "Bottom"});
  const auto& order = document.state().layers;
  document.editLayer(order[0]).visible = false;
  document.editLayer(order[2]).editable = false;

  EXPECT_THAT(Walk({}), ElementsAre("Top", "Middle", "Bottom"));
  EXPECT_THAT(Walk({nullptr, kLayerVisible}), ElementsAre("Middle", "Bottom"));
  EXPECT_THAT(Walk({nullptr, kLayerVisible, kLayerEditable}), ElementsAre("Bottom"));
  EXPECT_THAT(Walk({nullptr, 0, kLayerVisible}), ElementsAre("Top"));
  EXPECT_THAT(Walk({nullptr, 0x10}), ElementsAre()) << "a bit that means nothing is never set";
  int offered = 0;
  const auto second = [](AILayerHandle, void* data) { return ++*static_cast<int*>(data) == 2; };
  EXPECT_THAT(Walk({nullptr, kLayerVisible, 0, second, &offered}), ElementsAre("Bottom"));
  EXPECT_EQ(offered, 2) << "only layers that passed the masks are offered";
}

}  // namespace
