// The two mark tools, from the palette to the document.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AINotifier.h"
#include "AnnotationCanvas.h"
#include "AnnotatorMessages.h"
#include "ToolMessages.h"
#include "World.h"

namespace host {
namespace {

constexpr double kMillimetre = 72 / 25.4;

struct CountingCanvas : AnnotationCanvas {
  void drawRect(const AIRect&, const AnnotationPen&, bool) override { ++rects; }
  int rects = 0;
};

struct Mark {
  double x, y;  // centre
  double side;  // with its stroke
  AIArtType type;
};

class MarkTools : public testing::Test {
 protected:
  MarkTools() { EXPECT_EQ(world.complaint, ""); }

  const ToolRecord& tool(AIToolType number) { return *host.tools().byNumber(number); }
  AIToolHandle round() { return tool(0).handle; }
  AIToolHandle cross() { return tool(1).handle; }
  AIToolHandle addOwnTool() { return host.tools().add({}).handle; }

  std::vector<Mark> marks() {
    std::vector<Mark> found;
    const Document& document = *host.currentDocument();
    for (const ArtId art : artOn(document, "Regmark")) {
      const AIRealRect box = artBounds(document, art, nullptr, 0);
      found.push_back({(box.left + box.right) / 2, (box.bottom + box.top) / 2, box.right - box.left,
                       document.art(art)->type});
    }
    return found;
  }
  AIArtType kindDrawnBy(AIToolHandle chosen) {
    tools.choose(chosen);
    EXPECT_EQ(tools.mouseDown({50, 50}), kSPNoError);
    return marks().back().type;
  }
  int strips() {
    CountingCanvas canvas;
    if (const OpenDocument* open = host.documents().current()) {
      drawAnnotations(host, world.session, *open, canvas);
    }
    return canvas.rects;
  }
  std::int32_t storedInteger(const char* key) {
    return host.preferences().integer("Corvane", key).value_or(-1);
  }

  World world{squareOnPage()};
  Host& host = world.host;
  ToolMessages tools{host, world.session};
};

TEST_F(MarkTools, OneClickIsOneMarkAndOneStep) {
  const std::string before = writeSvg(world.drawing);
  ASSERT_TRUE(tools.choose(round()));
  EXPECT_EQ(storedInteger("Shape"), 1);
  EXPECT_EQ(world.drawing.document->undoCount(), 0U) << "a choice changes no document";
  EXPECT_EQ(tools.mouseDown({50, 60}), kSPNoError);
  EXPECT_EQ(tools.mouseDrag({70, 60}), kSPNoError);
  EXPECT_EQ(tools.mouseUp({70, 60}), kSPNoError);
  ASSERT_EQ(marks().size(), 1U);
  EXPECT_DOUBLE_EQ(marks()[0].x, 50);
  EXPECT_DOUBLE_EQ(marks()[0].y, 60);
  EXPECT_EQ(storedInteger("SelectedTool"), 0);
  EXPECT_EQ(world.drawing.document->undoCount(), 1U);
  EXPECT_EQ(world.drawing.document->undoName(), tool(0).title);
  tools.choose(cross());
  EXPECT_EQ(tools.mouseDown({-500, 9000}), kSPNoError) << "wherever it is";
  EXPECT_EQ(storedInteger("SelectedTool"), 1);
  EXPECT_EQ(storedInteger("Shape"), 2);
  EXPECT_EQ(marks().size(), 2U);
  ASSERT_TRUE(world.drawing.document->undo());
  ASSERT_TRUE(world.drawing.document->undo());
  EXPECT_TRUE(writeSvg(world.drawing) == before);
}

TEST_F(MarkTools, ACrossHasBarsOfAMillimetreAtLeast) {
  constexpr double kSize = 6 * kMillimetre;
  const struct {
    AIToolType number;
    double weight;
    double side;
  } table[] = {{1, 0, kSize + 2 * kMillimetre}, {1, 0.5, kSize + 1}, {0, 0, kSize}, {0, 0.5, kSize}};
  for (const auto& row : table) {
    host.preferences().put("Corvane", "StrokeWeight", row.weight);
    tools.choose(tool(row.number).handle);
    ASSERT_EQ(tools.mouseDown({300, 300}), kSPNoError);
    EXPECT_NEAR(marks().back().side, row.side, 1e-6) << row.number << ", " << row.weight;
    EXPECT_EQ(host.preferences().real("Corvane", "StrokeWeight"), row.weight) << "nothing is saved";
  }
}

TEST_F(MarkTools, PreciseCursorsMoveTheMark) {
  std::vector<std::int32_t> cursors;
  host.onCursor = [&](const PluginRecord&, std::int32_t id) { cursors.push_back(id); };
  const struct {
    bool precise;
    double zoom;
    AIRealPoint offset;
  } table[] = {
      {true, 1, {-0.25, 0.5}}, {true, 2, {-0.125, 0.25}}, {false, 2, {0, 0}}, {true, 0.5, {-0.5, 1}}};
  tools.choose(cross());
  ASSERT_EQ(tools.mouseDown({100, 200}), kSPNoError);
  EXPECT_DOUBLE_EQ(marks().back().x, 100) << "before the pointer ever moved";
  for (const auto& row : table) {
    host.preferences().put("", "usePreciseCursors", std::int32_t{row.precise});
    host.documents().current()->view.setZoom(row.zoom);
    ASSERT_EQ(tools.trackCursor({100, 200}), kSPNoError);
    EXPECT_EQ(cursors.back(), row.precise ? 16224 : 16223);
    ASSERT_EQ(tools.mouseDown({100, 200}), kSPNoError);
    EXPECT_NEAR(marks().back().x, 100 + row.offset.x, 1e-9) << row.zoom;
    EXPECT_NEAR(marks().back().y, 200 + row.offset.y, 1e-9) << row.zoom;
  }
  EXPECT_EQ(host.tools().info(), (ToolInfo{{kInfoDocX, 100}, {kInfoDocY, 200}}));
}

TEST_F(MarkTools, ALockedLayerIsToldAndTakesNoFurtherClick) {
  tools.choose(round());
  ASSERT_EQ(tools.mouseDown({100, 200}), kSPNoError);
  Document& document = *host.currentDocument();
  for (const LayerId layer : document.state().layers) document.editLayer(layer).editable = false;
  int shown = 0;
  host.showAlert = [&](const Alert&) {
    ++shown;
    EXPECT_FALSE(tools.mouseDown({0, 0}));
    EXPECT_FALSE(tools.trackCursor({0, 0}));
    EXPECT_FALSE(tools.editOptions(cross()));
    EXPECT_FALSE(tools.choose(cross()));
  };
  const auto code = tools.mouseDown({100, 200});
  ASSERT_TRUE(code);
  EXPECT_NE(*code, kSPNoError);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(host.alerts().back().text,
            "Could not add regmarks because the regmark layer is locked or hidden.");
  EXPECT_EQ(marks().size(), 1U);
  EXPECT_EQ(host.tools().selected()->handle, round());
}

TEST_F(MarkTools, ColoursLastUntilTheOtherToolOrAnotherDocument) {
  // A cross in the colours of the options has no ground: a compound path. Otherwise it is a group of both.
  world.setOptions(1, 0, 17, 1);
  EXPECT_EQ(kindDrawnBy(cross()), kGroupArt);
  EXPECT_EQ(tools.editOptions(round()), kSPNoError);
  EXPECT_EQ(host.tools().selected()->handle, cross()) << "the tool of the stored shape";
  EXPECT_EQ(kindDrawnBy(cross()), kCompoundPathArt);
  EXPECT_EQ(kindDrawnBy(cross()), kCompoundPathArt);
  EXPECT_EQ(kindDrawnBy(round()), kPathArt);
  EXPECT_EQ(kindDrawnBy(cross()), kGroupArt);

  world.setOptions(1, 0, 17, 1);
  EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
  EXPECT_EQ(kindDrawnBy(cross()), kCompoundPathArt);
  world.session.notify(kAIDocumentChangedNotifier);
  EXPECT_EQ(kindDrawnBy(cross()), kGroupArt);
}

TEST_F(MarkTools, OptionsOfAToolPlaceMarksAsTheCommandDoes) {
  world.setOptions(0, 1, 17, 1);
  EXPECT_EQ(tools.editOptions(cross()), kSPNoError);
  EXPECT_EQ(marks().size(), 5U);
  EXPECT_EQ(world.drawing.document->undoCount(), 1U);
  EXPECT_EQ(storedInteger("SelectedTool"), 0);
  world.session.closeDocument(*world.drawing.document);
  tools.choose(cross());
  EXPECT_EQ(tools.editOptions(cross()), kSPNoError);
  EXPECT_EQ(host.tools().selected()->handle, cross()) << "without a document nothing is asked";
  world.open("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"600pt\" height=\"800pt\"/>");
  world.setOptions(0, 1, 17, 1);
  EXPECT_EQ(tools.editOptions(round()), ErrorCode("!BND")) << "no art, and the code comes back";
}

TEST_F(MarkTools, TheTableHeadShowsWhileAToolIsSelected) {
  const AIToolHandle own = addOwnTool();
  world.open(readText(std::string(CORVANE_EXAMPLES) + "/two-cards-a4.svg"));
  const AIDocumentHandle document = host.documents().current()->handle();
  EXPECT_EQ(strips(), 0);
  std::size_t invalid = 0;
  host.onInvalidate = [&](const OpenDocument&, const AIRect&) { ++invalid; };
  tools.choose(round());
  EXPECT_EQ(strips(), 2);
  EXPECT_EQ(invalid, 2U);
  tools.choose(cross());
  EXPECT_EQ(strips(), 2) << "those of the other tool are gone";
  tools.choose(own);
  EXPECT_EQ(strips(), 0);
  EXPECT_EQ(host.annotators().size(), 2U);
  tools.choose(round());
  EXPECT_EQ(strips(), 2);
  EXPECT_EQ(host.annotators().size(), 2U) << "each tool keeps its own";
  world.session.notify(kAIDocumentChangedNotifier, document);
  EXPECT_EQ(strips(), 4) << "both fill again";
  invalid = 0;
  invalidateAnnotations(host, world.session, *host.documents().current());
  EXPECT_EQ(invalid, 4U);
  world.session.notify(kAIDocumentClosedNotifier, document);
  EXPECT_EQ(strips(), 0);
  EXPECT_EQ(world.drawing.document->undoCount(), 0U) << "strips are no art";
}

TEST(StoredMarkTool, ShowsInThePaletteWithoutBeingSelected) {
  ensureApplication();
  Host host;
  const AIToolHandle own = host.tools().add({}).handle;
  host.tools().select(own);
  host.preferences().put("Corvane", "SelectedTool", std::int32_t{1});
  Session session(host);
  const ToolMessages tools(host, session);
  ASSERT_EQ(session.loadPlugin(corvaneBundle()), "");
  const ToolRecord& cross = *host.tools().byNumber(2);
  EXPECT_EQ(host.tools().visibleMember(cross.group)->name, "brevia Register Round Mark Tool");
  session.start();
  EXPECT_EQ(host.tools().visibleMember(cross.group)->handle, cross.handle);
  EXPECT_EQ(host.tools().selected()->handle, own);
}

}  // namespace
}  // namespace host
