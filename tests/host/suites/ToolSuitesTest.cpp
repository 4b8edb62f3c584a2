// Suites over tools and what annotators draw.
#include <cmath>
#include <limits>

#include "AIAnnotatorDrawer.h"
#include "AITool.h"
#include "AnnotationCanvas.h"
#include "HostFixture.h"
#include "MessageDrawer.h"

namespace {

using Pixels = std::vector<std::int32_t>;

Pixels pixelsOf(const AIRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

struct RecordingCanvas : host::AnnotationCanvas {
  struct Rect {
    Pixels pixels;
    host::AnnotationPen pen;
    bool fill;
  };
  void drawRect(const AIRect& pixels, const host::AnnotationPen& pen, bool fill) override {
    rects.push_back({pixelsOf(pixels), pen, fill});
  }
  std::vector<Rect> rects;
};

class ToolSuitesTest : public HostFixture {
 protected:
  const AIToolSuite& tools = ACQUIRE(AIToolSuite);
  const AIAnnotatorSuite& annotators = ACQUIRE(AIAnnotatorSuite);
  const AIAnnotatorDrawerSuite& drawers = ACQUIRE(AIAnnotatorDrawerSuite);
};

TEST_F(ToolSuitesTest, RestoringAToolLeavesItsGroupAsItIs) {
  host::ToolTable& table = host.tools();
  const AIToolHandle select = table.add({}).handle, round = table.add({}).handle;
  host::ToolRecord member;
  member.group = table.all().find(round)->group;
  const AIToolHandle cross = table.add(member).handle;
  std::vector<AIToolHandle> changes;
  table.onChange = [&](const host::ToolRecord*, const host::ToolRecord* now) {
    changes.push_back(now->handle);
  };
  EXPECT_EQ(tools.SetSelectedTool(cross), kNoErr);
  for (const AIToolHandle tool : {select, round, round}) EXPECT_EQ(tools.RestoreSelectedTool(tool), kNoErr);
  EXPECT_EQ(table.visibleMember(member.group)->handle, cross);
  EXPECT_EQ(changes, (std::vector<AIToolHandle>{cross, select, round})) << "once for each change";
  EXPECT_EQ(table.selected()->handle, round);
}

TEST_F(ToolSuitesTest, InvalidRectanglesCoverAtLeastAPixel) {
  Pixels invalid;
  host.onInvalidate = [&](const host::OpenDocument& open, const AIRect& rect) {
    EXPECT_EQ(open.document, document);
    invalid = pixelsOf(rect);
  };
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const std::pair<AIRect, Pixels> table[] = {
      {{3, 5, 1, 2}, {1, 2, 3, 5}},
      {{4, -4, 4, 9}, {4, -4, 5, 9}},
      {{kMost, 0, kMost, 0}, {kMost - 1, 0, kMost, 1}},
      {{kLeast, kMost, kLeast, kLeast}, {kLeast, kLeast, kLeast + 1, kMost}},
  };
  for (const auto& [rect, covered] : table) {
    ASSERT_EQ(annotators.InvalAnnotationRect(nullptr, &rect), kNoErr);
    EXPECT_EQ(invalid, covered);
  }
  invalid.clear();
  const AIRect& rect = table[0].first;
  const AIDocumentViewHandle view = host.documents().current()->viewHandle();
  EXPECT_EQ(annotators.InvalAnnotationRect(view, nullptr), kBadParameterErr);
  host.documents().close(*document);
  EXPECT_EQ(annotators.InvalAnnotationRect(view, &rect), kBadParameterErr);
  EXPECT_EQ(annotators.InvalAnnotationRect(nullptr, &rect), kNoDocumentErr);
  EXPECT_TRUE(invalid.empty());
}

TEST_F(ToolSuitesTest, ADrawerLastsForItsMessage) {
  const AIRect rect{9, 1, 5, 4};
  const AIRGBColor red{65000, 0, 0};
  RecordingCanvas canvas;
  AIAnnotatorDrawer* kept = nullptr;
  {
    const host::MessageDrawer drawer(host, canvas), another(host, canvas);
    kept = drawer.handle();
    EXPECT_TRUE(each(kNoErr, drawers.SetColor(kept, &red), drawers.SetLineWidth(kept, 2)));
    EXPECT_TRUE(each(kBadParameterErr, drawers.SetLineWidth(kept, 0), drawers.SetLineWidth(kept, NAN),
                     drawers.SetLineWidth(kept, INFINITY), drawers.SetColor(kept, nullptr),
                     drawers.DrawRect(kept, nullptr, 1)));
    EXPECT_EQ(drawers.DrawRect(kept, &rect, 1), kNoErr);
    EXPECT_EQ(drawers.DrawRect(another.handle(), &rect, 0), kNoErr);
  }
  EXPECT_TRUE(each(kBadParameterErr, drawers.SetColor(kept, &red), drawers.SetLineWidth(kept, 2),
                   drawers.DrawRect(kept, &rect, 1), drawers.SetColor(nullptr, &red),
                   drawers.SetLineWidth(nullptr, 2), drawers.DrawRect(nullptr, &rect, 1)));
  ASSERT_EQ(canvas.rects.size(), 2U);
  for (int i = 0; i < 2; ++i) {
    const auto& [pixels, pen, filled] = canvas.rects[static_cast<std::size_t>(i)];
    EXPECT_EQ(pixels, (Pixels{5, 1, 9, 4}));
    EXPECT_EQ(filled, i == 0);
    EXPECT_EQ(pen.lineWidth, i == 0 ? 2 : 1) << "each drawer has a pen of its own";
    EXPECT_EQ(pen.color.red, i == 0 ? 65000 : 0);
  }
}

}  // namespace
