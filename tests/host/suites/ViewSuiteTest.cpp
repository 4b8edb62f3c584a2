#include <cmath>

#include "AIArtboard.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "Geometry.h"
#include "HostFixture.h"

namespace {

TEST(View, TurnsDocumentsIntoPixels) {
  host::View view(2.0);  // two points a unit
  view.setViewport(800, 600);
  view.setCenter({100, 50});
  view.setZoom(4);
  const AIRealPoint moved = view.toPixels({101, 52}), back = view.toDocument(moved);
  const AIRealPoint mapped = host::apply(view.pixelsFromDocument(), {101, 52});
  const AIRealRect bounds = view.bounds();
  EXPECT_THAT((std::vector{moved.x, moved.y, mapped.x, mapped.y, back.x, back.y, bounds.left, bounds.top,
                           bounds.right, bounds.bottom}),
              testing::Pointwise(testing::DoubleEq(),
                                 std::vector<AIReal>{408, 284, 408, 284, 101, 52, 50, 87.5, 150, 12.5}));
}

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

TEST_F(ViewSuiteTest, EachDocumentHasOneView) {
  AIDocumentViewHandle view = nullptr;
  ASSERT_EQ(views.GetNthDocumentView(0, &view), kNoErr);
  AIDocumentViewHandle none = nullptr;
  EXPECT_EQ(views.GetNthDocumentView(1, &none), kNoSuchItemErr);
  const auto other = makeDocument();
  host.documents().open(other, "other");
  EXPECT_EQ(views.SetDocumentViewZoom(view, 5), kNoErr);
  EXPECT_NE(zoom(), 5);
  host.documents().setCurrent(*document);
  EXPECT_EQ(zoom(), 5);
  host.documents().close(*document);
  EXPECT_EQ(host.currentDocument(), other.get());
  EXPECT_EQ(views.SetDocumentViewZoom(view, 5), kBadParameterErr);
  host.documents().close(*other);
  AIReal value = 0;
  EXPECT_EQ(views.GetDocumentViewZoom(nullptr, &value), kNoDocumentErr);
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
