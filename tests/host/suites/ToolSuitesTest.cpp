// Suites over tools, their pointer and what annotators draw.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "AIAnnotatorDrawer.h"
#include "AITool.h"
#include "AIUser.h"
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
  AIToolHandle add(const char* name) {
    host::ToolRecord tool;
    tool.name = name;
    return host.tools().add(tool).handle;
  }

  const AIToolSuite& tools = acquire<AIToolSuite>(kAIToolSuite, kAIToolSuiteVersion);
  const AIAnnotatorSuite& annotators = acquire<AIAnnotatorSuite>(kAIAnnotatorSuite, kAIAnnotatorSuiteVersion);
  const AIAnnotatorDrawerSuite& drawers =
      acquire<AIAnnotatorDrawerSuite>(kAIAnnotatorDrawerSuite, kAIAnnotatorDrawerSuiteVersion);
  const AIUserSuite& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
};

TEST_F(ToolSuitesTest, ToolsAreNumberedInTheirOrder) {
  for (const char* name : {"select", "round", "round", "cross"}) add(name);
  const struct {
    const char* name;
    AIErr error;
    AIToolType number;
  } table[] = {
      {"select", kNoErr, 0}, {"round", kNoErr, 1}, {"cross", kNoErr, 3}, {"Round", kNoSuchItemErr, 9}};
  for (const auto& row : table) {
    AIToolType number = 9;
    EXPECT_EQ(tools.GetToolNumberFromName(row.name, &number), row.error) << row.name;
    EXPECT_EQ(number, row.number) << row.name;
  }
  AIToolType number = 9;
  EXPECT_EQ(tools.GetToolNumberFromName(nullptr, &number), kBadParameterErr);
  EXPECT_EQ(tools.GetToolNumberFromName("round", nullptr), kBadParameterErr);
}

TEST_F(ToolSuitesTest, TheInfoDisplayShowsWhatTheSelectedToolAskedFor) {
  const AIToolHandle round = add("round");
  const AIToolHandle other = add("other");
  int shown = 0;
  host.tools().onInfo = [&] { ++shown; };
  const AIToolInfoVariable both[] = {kInfoDocX, kInfoDocY, kInfoEnd};
  const AIToolInfoVariable second[] = {kInfoDocY, kInfoEnd};
  const AIReal x = 12.5;
  const AIReal y = -3;
  const AIReal* const values[] = {&x, &y};
  ASSERT_EQ(tools.SetToolInfoVars(round, both), kNoErr);
  ASSERT_EQ(tools.SetToolInfoVars(other, second), kNoErr);
  ASSERT_EQ(tools.SetToolInfoVarValues(both, values), kNoErr);
  EXPECT_EQ(shown, 1);
  EXPECT_TRUE(host.tools().info().empty()) << "no tool is selected";
  tools.SetSelectedTool(round);
  EXPECT_EQ(host.tools().info(), (host::ToolInfo{{kInfoDocX, 12.5}, {kInfoDocY, -3}}));
  tools.SetSelectedTool(other);
  EXPECT_EQ(host.tools().info(), (host::ToolInfo{{kInfoDocY, -3}}));
}

TEST_F(ToolSuitesTest, FaultyInfoListsChangeNothing) {
  const AIToolHandle round = add("round");
  const AIToolInfoVariable both[] = {kInfoDocX, kInfoDocY, kInfoEnd};
  const AIToolInfoVariable unknown[] = {kInfoDocX, 99, kInfoEnd};
  constexpr const AIToolInfoVariable* kNoList = nullptr;
  AIToolInfoVariable endless[kMaxInfoVariables + 1];
  std::fill(std::begin(endless), std::end(endless), kInfoDocX);
  for (const AIToolInfoVariable* list : {&unknown[0], &std::as_const(endless)[0], kNoList}) {
    EXPECT_EQ(tools.SetToolInfoVars(round, list), kBadParameterErr);
    EXPECT_EQ(tools.SetToolInfoVarValues(list, nullptr), kBadParameterErr);
  }
  for (const AIToolHandle stranger : {AIToolHandle{}, reinterpret_cast<AIToolHandle>(plugin)}) {
    EXPECT_EQ(tools.SetToolInfoVars(stranger, both), kBadParameterErr);
  }
  const AIReal good = 1;
  const AIReal bad = std::nan("");
  const AIReal* const withNull[] = {&good, nullptr};
  const AIReal* const withBad[] = {&good, &bad};
  constexpr const AIReal* const* kNoValues = nullptr;
  for (const AIReal* const* values : {&withNull[0], &withBad[0], kNoValues}) {
    EXPECT_EQ(tools.SetToolInfoVarValues(both, values), kBadParameterErr);
  }
  ASSERT_EQ(tools.SetToolInfoVars(round, both), kNoErr);
  tools.SetSelectedTool(round);
  EXPECT_TRUE(host.tools().info().empty());
}

TEST_F(ToolSuitesTest, TheCursorIsOfTheManagersPlugin) {
  std::optional<std::int32_t> asked;
  host.onCursor = [&](const host::PluginRecord& owner, std::int32_t id) {
    EXPECT_EQ(owner.handle, plugin);
    asked = id;
  };
  AIResourceManagerHandle manager = nullptr;
  ASSERT_EQ(user.CreateCursorResourceMgr(plugin, &manager), kNoErr);
  EXPECT_EQ(user.SetCursor(16221, nullptr), kBadParameterErr);
  EXPECT_EQ(user.SetCursor(16221, reinterpret_cast<AIResourceManagerHandle>(plugin)), kBadParameterErr);
  EXPECT_FALSE(asked);
  EXPECT_EQ(user.SetCursor(16221, manager), kNoErr);
  EXPECT_EQ(asked, 16221);
  ASSERT_EQ(user.DisposeCursorResourceMgr(manager), kNoErr);
  EXPECT_EQ(user.SetCursor(16223, manager), kBadParameterErr);
  EXPECT_EQ(asked, 16221);
}

TEST_F(ToolSuitesTest, InvalidRectanglesCoverAtLeastAPixel) {
  std::vector<Pixels> invalid;
  host.onInvalidate = [&](const host::OpenDocument& open, const AIRect& rect) {
    EXPECT_EQ(open.document, document);
    invalid.push_back(pixelsOf(rect));
  };
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const struct {
    AIRect rect;
    Pixels covered;
  } table[] = {
      {{1, 2, 3, 5}, {1, 2, 3, 5}},
      {{3, 5, 1, 2}, {1, 2, 3, 5}},
      {{4, -4, 4, 9}, {4, -4, 5, 9}},
      {{kMost, 0, kMost, 0}, {kMost - 1, 0, kMost, 1}},
      {{kLeast, kMost, kLeast, kLeast}, {kLeast, kLeast, kLeast + 1, kMost}},
  };
  for (const auto& row : table) {
    ASSERT_EQ(annotators.InvalAnnotationRect(nullptr, &row.rect), kNoErr);
    EXPECT_EQ(invalid.back(), row.covered);
  }
  const AIDocumentViewHandle view = host.documents().current()->viewHandle();
  EXPECT_EQ(annotators.InvalAnnotationRect(view, &table[0].rect), kNoErr);
  EXPECT_EQ(annotators.InvalAnnotationRect(view, nullptr), kBadParameterErr);
  host.documents().close(*document);
  EXPECT_EQ(annotators.InvalAnnotationRect(view, &table[0].rect), kBadParameterErr);
  EXPECT_EQ(annotators.InvalAnnotationRect(nullptr, &table[0].rect), kNoDocumentErr);
  EXPECT_EQ(invalid.size(), std::size(table) + 1);
}

TEST_F(ToolSuitesTest, ADrawerLastsForItsMessage) {
  const AIRect rect{9, 1, 5, 4};
  const AIRGBColor red{65000, 0, 0};
  RecordingCanvas canvas;
  AIAnnotatorDrawer* kept = nullptr;
  {
    const host::MessageDrawer drawer(host, canvas);
    const host::MessageDrawer another(host, canvas);
    kept = drawer.handle();
    EXPECT_EQ(drawers.DrawRect(kept, &rect, 0), kNoErr);
    EXPECT_EQ(drawers.SetColor(kept, &red), kNoErr);
    EXPECT_EQ(drawers.SetLineWidth(kept, 2), kNoErr);
    for (const AIReal width : {0.0, -1.0, std::nan(""), std::numeric_limits<AIReal>::infinity()}) {
      EXPECT_EQ(drawers.SetLineWidth(kept, width), kBadParameterErr) << width;
    }
    EXPECT_EQ(drawers.SetColor(kept, nullptr), kBadParameterErr);
    EXPECT_EQ(drawers.DrawRect(kept, nullptr, 1), kBadParameterErr);
    EXPECT_EQ(drawers.DrawRect(kept, &rect, 1), kNoErr);
    EXPECT_EQ(drawers.DrawRect(another.handle(), &rect, 1), kNoErr);
  }
  for (AIAnnotatorDrawer* drawer : {kept, static_cast<AIAnnotatorDrawer*>(nullptr)}) {
    EXPECT_EQ(drawers.SetColor(drawer, &red), kBadParameterErr);
    EXPECT_EQ(drawers.SetLineWidth(drawer, 2), kBadParameterErr);
    EXPECT_EQ(drawers.DrawRect(drawer, &rect, 1), kBadParameterErr);
  }
  ASSERT_EQ(canvas.rects.size(), 3U);
  for (const auto& drawn : canvas.rects) EXPECT_EQ(drawn.pixels, (Pixels{5, 1, 9, 4}));
  EXPECT_FALSE(canvas.rects[0].fill);
  EXPECT_EQ(canvas.rects[0].pen.lineWidth, 1);
  EXPECT_EQ(canvas.rects[0].pen.color.red, 0);
  EXPECT_TRUE(canvas.rects[1].fill);
  EXPECT_EQ(canvas.rects[1].pen.lineWidth, 2);
  EXPECT_EQ(canvas.rects[1].pen.color.red, 65000);
  EXPECT_EQ(canvas.rects[2].pen.color.red, 0) << "each drawer has a pen of its own";
}

}  // namespace
