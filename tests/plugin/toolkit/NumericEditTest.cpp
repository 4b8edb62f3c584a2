// Fields for numbers, with a user at keys, wheel and mouse.
#include <QLineEdit>
#include <QWheelEvent>

#include "DialogWorld.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

constexpr Qt::KeyboardModifiers kControl = Qt::ControlModifier, kShift = Qt::ShiftModifier;

class NumericEditTest : public DialogTest {
 protected:
  NumericEditTest() { Request({"SP Basic Suite", "AI User Suite", "AI Unicode String Suite"}); }
};

// A field from 0.01 pt to 20 mm in a dialog that is up, with another field beside it.
struct World {
  explicit World(bool immediate) {
    edit = new RVADM_NumericEdit(&dialog, immediate, -1, 0.01, 1440 / 25.4, 1);
    edit->SetUnits(kMillimeterUnits);
    edit->SetShowArrows(true);
    other = new RVADM_TextEdit(&dialog, "", false, false);
    other->move(0, 100);
    ok = new RVADM_TextPushButton(&dialog, "OK");
    ok->move(0, 200);
    dialog.SetDefaultButton(ok);
    dialog.Open();
  }
  void Start(double millimeters) const {
    edit->SetValue(kMillimeterUnits, millimeters);
    other->setFocus();
    edit->setFocus();
  }
  void Type(const QString& typed) const {
    edit->selectAll();
    if (typed.isEmpty()) {
      Key(Qt::Key_Delete);
    } else {
      QTest::keyClicks(edit, typed);
    }
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const {
    QTest::keyClick(dialog.windowHandle(), key, held);
  }
  bool Wheel(const QPoint& point, Qt::KeyboardModifiers held = Qt::NoModifier) const {
    QWheelEvent wheel(point, edit->mapToGlobal(point), {}, {0, 120}, Qt::NoButton, held, Qt::NoScrollPhase,
                      false);
    return QApplication::sendEvent(edit, &wheel) && wheel.isAccepted();
  }
  void PressArrow() {
    const QPoint up = edit->mapTo(&dialog, {edit->width() - 5, 5});
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, up);
  }
  std::string Shown() const { return edit->GetTextInt().toStdString(); }
  int Notified() { return static_cast<int>(std::exchange(dialog.notified, {}).size()); }

  TestDialog dialog;
  RVADM_NumericEdit* edit;
  RVADM_TextEdit* other;
  RVADM_TextPushButton* ok;
};

TEST_F(NumericEditTest, StepsLandOnMultiples) {
  constexpr Qt::Key kUp = Qt::Key_Up, kDown = Qt::Key_Down, kPageUp = Qt::Key_PageUp;
  const struct {
    double from;
    Qt::Key key;
    Qt::KeyboardModifiers held;
    const char* shown;
    int notified = 1;
  } cases[] = {{2.3, kUp, {}, "3 mm"},         {3, kUp, {}, "4 mm"},
               {2.3, kUp, kControl, "2.5 mm"}, {2.3, kUp, kControl | kShift, "5 mm"},
               {2.3, kPageUp, {}, "10 mm"},    {19.5, kUp, kShift, "20 mm"},
               {0.5, kDown, {}, "0.004 mm"},   {20, kUp, {}, "20 mm", 0}};
  for (const bool immediate : {false, true}) {
    World world(immediate);
    std::string heard;
    world.dialog.react = [&] { heard = world.Shown(); };
    for (const auto& one : cases) {
      world.Start(one.from);
      world.Key(one.key, one.held);
      EXPECT_EQ(world.Shown(), one.shown) << one.from;
      EXPECT_EQ(world.Notified(), one.notified) << one.from;
      EXPECT_EQ(heard, one.notified == 0 ? heard : one.shown) << "the handler sees the new number";
    }
    world.Start(2);
    world.Type("7");
    world.Key(Qt::Key_Up);
    EXPECT_EQ(world.Shown(), "8 mm") << "what was typed counts";
    world.edit->setReadOnly(true);
    world.Key(Qt::Key_Up);
    EXPECT_EQ(world.Shown(), "8 mm");
  }
}

TEST_F(NumericEditTest, WheelAndArrowsStepInTheFieldThatTheUserIsIn) {
  World world(false);
  world.Start(2);
  EXPECT_TRUE(world.Wheel({5, 5}));
  QTest::keyPress(world.dialog.windowHandle(), Qt::Key_Control, Qt::ControlModifier);
  EXPECT_TRUE(world.Wheel({5, 5}, Qt::ControlModifier));
  QTest::keyRelease(world.dialog.windowHandle(), Qt::Key_Control);
  EXPECT_EQ(world.Shown(), "3.5 mm") << "Qt alone would take ten steps with Control";
  EXPECT_FALSE(world.Wheel({5, -5}));
  world.PressArrow();
  EXPECT_EQ(world.Shown(), "4 mm");
  EXPECT_EQ(world.Notified(), 3);
  world.other->setFocus();
  EXPECT_FALSE(world.Wheel({5, 5}));
  EXPECT_EQ(world.Shown(), "4 mm");
}

TEST_F(NumericEditTest, TypedNumbersCountAtTheEndOrWithEachKey) {
  const struct {
    const char* typed;
    const char* shown;
    double whileTyped;
    int keys;  // that the immediate field notifies of
  } cases[] = {
      {"2,5", "2.5 mm", 2.5, 3}, {"1 cm", "10 mm", 10, 4}, {"99", "20 mm", 20, 2}, {"x", "3 mm", 3, 1}};
  for (const bool immediate : {false, true}) {
    World world(immediate);
    for (const auto& one : cases) {
      world.Start(3);
      world.Type(one.typed);
      EXPECT_EQ(world.Shown(), one.typed);
      EXPECT_EQ(world.Notified(), immediate ? one.keys : 0) << one.typed;
      EXPECT_NEAR(world.edit->GetValue(kMillimeterUnits), immediate ? one.whileTyped : 3, 1e-4) << one.typed;
      world.Key(Qt::Key_Tab);
      EXPECT_EQ(world.Shown(), one.shown);
      EXPECT_EQ(world.Notified(), immediate ? 0 : 1) << one.typed;
    }
  }
}

TEST_F(NumericEditTest, ReturnCommitsBeforeItPressesTheDefaultButton) {
  const struct {
    const char* typed;  // null for nothing
    const char* shown;
    int returns, returnsWhenImmediate;
  } cases[] = {{nullptr, "3 mm", 1, 1}, {"5", "5 mm", 2, 1}, {"3 mm", "3 mm", 1, 1},
               {"99", "20 mm", 2, 2},   {"x", "3 mm", 2, 2}, {"2.00049", "2 mm", 2, 1}};
  for (const bool immediate : {false, true}) {
    for (const auto& one : cases) {
      World world(immediate);
      world.Start(3);
      if (one.typed != nullptr) world.Type(one.typed);
      int returns = 0;
      for (; world.dialog.TimesNotified(world.ok) == 0 && returns < 4; ++returns) {
        world.Key(Qt::Key_Return);
        EXPECT_EQ(world.Shown(), one.shown);
      }
      EXPECT_EQ(returns, immediate ? one.returnsWhenImmediate : one.returns) << (one.typed ? one.typed : "");
      if (!immediate) {
        EXPECT_EQ(world.dialog.TimesNotified(world.edit), one.typed == nullptr ? 0 : 1);
      }
    }
  }
}

TEST_F(NumericEditTest, AnEmptyFieldStaysEmptyWhereItMay) {
  World world(false);
  world.edit->SetKeepEmpty(true);
  world.Start(3);
  world.Type("");
  world.other->setFocus();
  EXPECT_EQ(world.Shown(), "3 mm") << "was not empty when the user came";
  world.edit->SetText("", false, false);
  for (const auto& [typed, shown] : {std::pair{"x", ""}, {"4", "4 mm"}}) {
    world.edit->setFocus();
    world.Type(typed);
    world.other->setFocus();
    EXPECT_EQ(world.Shown(), shown) << typed;
  }
  world.edit->SetText("", false, false);
  world.edit->SetUnits(kPointUnits);
  EXPECT_EQ(world.Shown(), "");
}

}  // namespace
}  // namespace qRVADM
