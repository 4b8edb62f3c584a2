// The two paints of fill and stroke, and the patch of a colour: what is drawn, clicked and picked.
#include "RVADM_FillStrokeItem.h"

#include "AICustomColor.h"
#include "AISwatchList.h"
#include "ColorToRGBColor.h"
#include "DialogWorld.h"
#include "FillStrokeClick.h"
#include "Pixels.h"
#include "RVADM_RGBColorPatch.h"

namespace qRVADM {
namespace {

TEST(FillStrokeClick, GoesByWhatIsSeenAtPressAndRelease) {
  using C = FillStrokeClick;
  constexpr ADMPoint fillCorner{0, 0}, fillEdge{20, 9}, overlap{10, 20}, strokeEdge{21, 10},
      strokeEnd{30, 30}, besides{21, 9}, outside{-1, 5}, beyond{31, 30};
  const struct {
    ADMPoint press, release;
    C fillOnTop, strokeOnTop;
  } rows[] = {{fillCorner, fillEdge, C::kNothing, C::kBringUp},
              {strokeEdge, strokeEnd, C::kBringUp, C::kNothing},
              {overlap, overlap, C::kNothing, C::kNothing},
              {overlap, fillCorner, C::kNothing, C::kCopyStrokeToFill},
              {strokeEnd, overlap, C::kCopyStrokeToFill, C::kNothing},
              {fillEdge, strokeEdge, C::kCopyFillToStroke, C::kCopyFillToStroke},
              {besides, fillCorner, C::kNothing, C::kNothing},
              {fillCorner, outside, C::kNothing, C::kNothing},
              {strokeEnd, beyond, C::kNothing, C::kNothing}};
  for (const auto& row : rows) {
    EXPECT_EQ(ClickResult(row.press, row.release, true), row.fillOnTop) << &row - rows;
    EXPECT_EQ(ClickResult(row.press, row.release, false), row.strokeOnTop) << &row - rows;
  }
}

AIColor Paint(AIColorTag kind, AIReal first = 0, AIReal second = 0, AIReal third = 0) {
  AIColor paint{};
  paint.kind = kind;
  paint.c.rgb = {first, second, third};
  return paint;
}

class FillStrokeItemTest : public DialogTest {
 protected:
  FillStrokeItemTest() {
    Request({"AI Color Conversion Suite", "AI Custom Color Suite", "AI Paint Style Suite",
             "AI Swatch List Suite", "AI User Suite", "AI Unicode String Suite"});
    host.documents().open(document, "drawing");
    document->addSwatch(document->addSwatchGroup(-1), Paint(kThreeColor), "first");
    dialog.Open();
    item.show();
    patch.SetBounds({100, 0, 120, 10});
    patch.show();
    host.pickPaint = [this](AISwatchRef swatch, AIColor& paint) {
      EXPECT_EQ(swatch, sAISwatchList->GetNthSwatch(nullptr, 0));
      EXPECT_NE(swatch, nullptr);
      shown.push_back(paint);
      if (deleteMeanwhile) delete &item;
      paint = Paint(kFourColor, 0, 1);
      return true;
    };
    host.pickRGBColor = [this](const std::string& title, AIRGBColor& color) {
      EXPECT_EQ(title, "");
      EXPECT_EQ(color.green, patch.GetColor().green);
      color.green = 0x5555;
      if (deleteMeanwhile) delete &patch;
      return true;
    };
  }

  AIColor Fill() const {
    AIColor fill;
    item.GetFill(&fill);
    return fill;
  }
  AIColor Stroke() const {
    AIColor stroke;
    item.GetStroke(&stroke);
    return stroke;
  }
  void Drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton) {
    Press(dialog, from, button);
    Release(dialog, to, button);
  }
  void DoubleClick(const QPoint& at = {10, 10}) {
    QTest::mouseDClick(dialog.windowHandle(), Qt::LeftButton, {}, at);
  }

  const std::shared_ptr<host::Document> document = std::make_shared<host::Document>();
  TestDialog dialog;
  RVADM_FillStrokeItem& item = *new RVADM_FillStrokeItem(&dialog);
  RVADM_RGBColorPatch& patch = *new RVADM_RGBColorPatch(&dialog, {0xffff, 0x8000, 0});
  const QPoint onPatch{105, 5};
  std::vector<AIColor> shown;  // by the picker
  bool deleteMeanwhile = false;
};

TEST_F(FillStrokeItemTest, DrawsTheSquaresOverEachOther) {
  AIRGBColor fill{}, stroke{};
  item.SetFill(Paint(kThreeColor, 1, 0.5, 0));
  item.SetStroke(Paint(kThreeColor, 0, 0, 1));
  ASSERT_EQ(ColorToGamutRGBColor(Fill(), fill), kNoErr);
  ASSERT_EQ(ColorToGamutRGBColor(Stroke(), stroke), kNoErr);
  const struct {
    bool fillActive;
    int y;
    const char* row;
  } rows[] = {{true, 1, "ewwwwwwwwwwwwwwwwwwwe----------"},   {true, 12, "ewfffffffffffffffffwesssssssswe"},
              {true, 20, "eeeeeeeeeeeeeeeeeeeee---ewssswe"},  {true, 26, "----------ewssssssssssssssssswe"},
              {false, 10, "ewffffffffeeeeeeeeeeeeeeeeeeeee"}, {false, 15, "ewffffffffewssswwwwwwwwwwwssswe"},
              {false, 17, "ewffffffffewssswe-------ewssswe"}, {false, 30, "----------eeeeeeeeeeeeeeeeeeeee"}};
  const Legend legend{{'e', QColor(0x63, 0x63, 0x63)},
                      {'w', Qt::white},
                      {'f', QColor(fill.red >> 8, fill.green >> 8, fill.blue >> 8)},
                      {'s', QColor(stroke.red >> 8, stroke.green >> 8, stroke.blue >> 8)},
                      {'-', item.palette().color(QPalette::Active, QPalette::Window)}};
  for (const int ratio : {1, 2}) {
    for (const auto& row : rows) {
      item.SetFillActive(row.fillActive);
      EXPECT_EQ(RowOf(Grab(item, ratio), row.y, legend), row.row) << row.fillActive << row.y << ratio;
    }
  }
}

TEST_F(FillStrokeItemTest, ClicksChangeTheOrderAndDragsCopy) {
  const QPoint fill(4, 4), stroke(27, 27);
  Drag(stroke, stroke, Qt::RightButton);
  EXPECT_TRUE(item.IsFillActive());
  Drag(stroke, QPoint(25, 25));
  EXPECT_FALSE(item.IsFillActive());
  item.SetFill(Paint(kGrayColor));
  Drag(stroke, fill);
  EXPECT_EQ(Fill().kind, kNoneColor);
  EXPECT_EQ(dialog.notified.size(), 0U);
  item.SetStroke(Paint(kGrayColor));
  EXPECT_EQ(dialog.TimesNotified(&item), 1);
}

TEST_F(FillStrokeItemTest, PicksThePaintOnTop) {
  AIColor gone = Paint(kCustomColor);
  gone.c.c = {};
  const std::pair<AIColor, AIReal> starts[] = {// and the red that the picker shows
                                               {Paint(kGrayColor, 0.25), 0.75},
                                               {Paint(kThreeColor, 0.3), 0.3},
                                               {gone, 0}};
  for (const auto& [start, red] : starts) {
    item.SetFill(start);
    DoubleClick();
    EXPECT_EQ(shown.back().kind, kThreeColor) << red;
    EXPECT_EQ(shown.back().c.rgb.red, red);
    EXPECT_EQ(Fill().kind, kFourColor) << red;
  }
  EXPECT_EQ(shown.size(), std::size(starts)) << "one for each double click";
  EXPECT_EQ(dialog.notified.size(), 0U) << "of fills";
  item.SetFillActive(false);
  DoubleClick({20, 20});
  EXPECT_EQ(Stroke().kind, kFourColor);
  EXPECT_EQ(dialog.TimesNotified(&item), 1);
  item.SetStroke(Paint(kGrayColor));
  for (const bool hostRefuses : {false, true}) {
    if (hostRefuses) {
      ASSERT_EQ(host.refusal().add("AI Paint Style Suite:ShowColorPicker"), "");
    }
    host.pickPaint = [](AISwatchRef, AIColor&) { return false; };
    DoubleClick({20, 20});
    EXPECT_EQ(Stroke().kind, kGrayColor) << hostRefuses;
  }
}

TEST_F(FillStrokeItemTest, MayBeGoneWhenThePickerIsAnswered) {
  const QPointer<QWidget> itemAlive(&item), patchAlive(&patch);
  deleteMeanwhile = true;
  DoubleClick();
  Press(dialog, onPatch);
  Release(dialog, onPatch);
  EXPECT_FALSE(itemAlive);
  EXPECT_FALSE(patchAlive);
}

}  // namespace
}  // namespace qRVADM
