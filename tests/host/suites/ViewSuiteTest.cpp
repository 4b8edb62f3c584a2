#include <cmath>

#include "AIArtboard.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "Geometry.h"
#include "HostFixture.h"

namespace {

TEST(View, ShowsEvenWhatHasNoSize) {
  host::View view;
  view.show({5, 5, 5, 5});
  EXPECT_TRUE(std::isfinite(view.zoom()));
  EXPECT_EQ(view.center().x, 5);
  view.setViewport(0, -3);
  EXPECT_EQ(view.width(), 1);
  EXPECT_EQ(view.height(), 1);
}

class ViewSuiteTest : public HostFixture {
 protected:
  AIReal zoom() {
    AIReal value = 0;
    EXPECT_EQ(views.GetDocumentViewZoom(nullptr, &value), kNoErr);
    return value;
  }

  const AIDocumentViewSuite& views = ACQUIRE(AIDocumentViewSuite);
};

TEST_F(ViewSuiteTest, KeepsTheZoomWithinLimits) {
  const std::pair<AIReal, AIReal> cases[] = {{2, 2}, {1e6, 640}, {1e-9, 1.0 / 10000}};
  for (const auto& [asked, given] : cases) {
    EXPECT_EQ(views.SetDocumentViewZoom(nullptr, asked), kNoErr);
    EXPECT_EQ(zoom(), given);
  }
  for (const AIReal wrong : {0.0, -1.0, std::nan(""), std::numeric_limits<AIReal>::infinity()}) {
    EXPECT_EQ(views.SetDocumentViewZoom(nullptr, wrong), kBadParameterErr);
  }
}

TEST_F(ViewSuiteTest, ArtboardListsAreCopies) {
  const auto& boards = ACQUIRE(AIArtboardSuite);
  AIArtboardListHandle list = nullptr;
  ASSERT_EQ(boards.GetArtboardList(&list), kNoErr);
  document->editState().artboards.clear();
  AIArtboardPropertiesHandle properties = nullptr;
  EXPECT_TRUE(each(kNoSuchItemErr, boards.GetArtboardProperties(list, 1, &properties),
                   boards.GetArtboardProperties(list, -1, &properties)));
  ASSERT_EQ(boards.GetArtboardProperties(list, 0, &properties), kNoErr);
  ASSERT_EQ(boards.DisposeArtboardList(list), kNoErr);
  std::int32_t count = 0;
  EXPECT_EQ(boards.GetCount(list, &count), kBadParameterErr);
  const AIUnicodeStringHandle name = text();
  EXPECT_EQ(boards.GetName(properties, name), kNoErr);
  EXPECT_EQ(read(name), "Front");
}

}  // namespace
