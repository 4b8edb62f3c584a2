// The dialog "brevia Register Marks", from the menu of the window to the marks in the drawing.
#include <gmock/gmock.h>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>
#include <QtTest/QTest>
#include <sstream>

#include "WindowWorld.h"

namespace host {
namespace {

constexpr double kMillimetre = 72 / 25.4;

// The items of the dialog as a user finds them: by the texts beside them.
class MarksDialog {
 public:
  explicit MarksDialog(QDialog& shown) : dialog(shown) {}

  QComboBox& shape() { return *beside<QComboBox>("Shape:"); }
  QAbstractSpinBox& size() { return *beside<QAbstractSpinBox>("Size:"); }
  QAbstractSpinBox& weight() { return *beside<QAbstractSpinBox>("Stroke Weight:"); }
  QSlider& slider() { return *dialog.findChild<QSlider*>(); }
  QRadioButton& radio(const char* text) { return *labelled<QRadioButton>(text); }
  std::string chosenRadio() {
    for (QRadioButton* radio : dialog.findChildren<QRadioButton*>()) {
      if (radio->isChecked()) return radio->text().toStdString();
    }
    return "none";
  }

  void choose(const char* shapeName) {
    QTest::keyClick(&shape(), std::string(shapeName) == "Cross" ? Qt::Key_Down : Qt::Key_Up);
  }
  void type(QAbstractSpinBox& field, const char* text) {
    QTest::mouseClick(&field, Qt::LeftButton, {}, {10, 10});
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Tab);
  }
  // The square of the fill lies at the upper left, that of the stroke at the lower right.
  void clickStroke() { QTest::mouseClick(paints(), Qt::LeftButton, {}, {28, 28}); }
  void pickPaint() { QTest::mouseDClick(paints(), Qt::LeftButton, {}, {15, 15}); }
  void clickNone() { QTest::mouseClick(dialog.findChild<QToolButton*>(), Qt::LeftButton); }
  // Words: a shape, "stroke", "pick", "none", or a weight.
  void doAll(const std::string& words) {
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
      if (word == "Round" || word == "Cross") {
        choose(word.c_str());
      } else if (word == "stroke") {
        clickStroke();
      } else if (word == "pick") {
        pickPaint();
      } else if (word == "none") {
        clickNone();
      } else {
        type(weight(), word.c_str());
      }
    }
  }
  void press(const char* button) { QTest::mouseClick(labelled<QPushButton>(button), Qt::LeftButton); }

  QDialog& dialog;

 private:
  QWidget* paints() { return beside<QWidget>("Color:"); }
  template <typename Field>
  Field* beside(const char* text) {
    return qobject_cast<Field*>(labelled<QLabel>(text)->buddy());
  }
  template <typename Widget>
  Widget* labelled(const char* text) {
    for (Widget* widget : dialog.findChildren<Widget*>()) {
      if (widget->text() == text) return widget;
    }
    throw std::runtime_error(std::string("nothing says ") + text);
  }
};

using Doings = std::function<void(MarksDialog&)>;

class MarksDialogTest : public WindowTest {
 protected:
  MarksDialogTest() { window.openFiles({scratch.write("square.svg", squareOnPage())}); }

  // Chooses the command; the user does something in its dialog and presses a button, if one is named.
  void run(const Doings& doings, const char* button = "OK") {
    const BoxAnswer answer([&](QDialog& dialog) {
      QApplication::setActiveWindow(&dialog);  // no window manager does it behind a menu
      MarksDialog marksDialog(dialog);
      doings(marksDialog);
      if (*button != 0) marksDialog.press(button);
    });
    world.activate();
    world.choose({"Window", "Vandrell", "corvane", kMarksKey});
    ASSERT_TRUE(answer.seen());
    EXPECT_EQ(answer.seen()->title, "brevia Register Marks");
  }
  std::vector<ArtId> marks() { return artOn(world.document(), "Regmark"); }
  std::int32_t stored(const char* key) { return preferences.integer("Corvane", key).value_or(-1); }
  double storedReal(const char* key) { return preferences.real("Corvane", key).value_or(-1); }

  Preferences& preferences = world.host.preferences();
};

// Fill and stroke of a disc, bars of a cross; "-" for what is not painted.
std::string look(const Art& mark) {
  const auto ink = [](bool paints, const AIColor& color) -> std::string {
    if (!paints || color.kind == kNoneColor) return "-";
    return color.kind == kFourColor && color.c.f.black == 1 ? "black" : "other";
  };
  const std::string fill = ink(mark.style->fillPaint, mark.style->fill.color);
  if (mark.type == kCompoundPathArt) return fill + " bars";
  return fill + " " + ink(mark.style->strokePaint, mark.style->stroke.color);
}

TEST_F(MarksDialogTest, ShapeColoursAndWeightFollowOneAnother) {
  world.host.pickPaint = [](AISwatchRef, AIColor& paint) {
    paint = {};
    paint.kind = kThreeColor;
    return true;
  };
  const struct {
    const char* name;
    std::int32_t shape;  // as stored
    double weight;       // stored
    const char* doings;
    const char* weightShown;
    const char* marks;
  } table[] = {
      {"a disc starts without a stroke", 1, 3, "", "0 pt", "black -"},
      {"a cross has its weight", 2, 3, "", "3 pt", "black bars"},
      {"or 1 mm", 2, 0, "", "2.835 pt", "black bars"},
      {"the disc's black becomes the bars'", 1, 0, "Cross", "2.835 pt", "black bars"},
      {"and back", 1, 0, "Cross Round", "0 pt", "black -"},
      {"a weight brings a stroke", 1, 0, "4", "4 pt", "black black"},
      {"no weight takes it away", 2, 3, "Round 4 0", "0 pt", "black -"},
      {"a paint brings a weight", 1, 0, "stroke pick", "2.835 pt", "black other"},
      {"that paint is remembered", 1, 0, "stroke pick 0 2", "2 pt", "black other"},
      {"none for the fill leaves the weight", 1, 0, "2 none", "2 pt", "- black"},
      {"none for the stroke takes the weight", 1, 0, "2 stroke none", "0 pt", "black -"},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.name);
    preferences.put("Corvane", "Shape", row.shape);
    preferences.put("Corvane", "StrokeWeight", row.weight);
    std::string shown;
    run([&](MarksDialog& d) {
      d.doAll(row.doings);
      shown = d.weight().text().toStdString();
    });
    EXPECT_EQ(shown, row.weightShown);
    ASSERT_EQ(marks().size(), 5U);
    EXPECT_EQ(look(*world.document().art(marks()[0])), row.marks);
  }
}

TEST_F(MarksDialogTest, LengthsAreInTheUnitsOfTheRulersAndHeldInTheirLimits) {
  preferences.put("Corvane", "Shape", std::int32_t{2});
  const struct {
    AIRulerUnits ruler;
    const char *typed, *size, *weight;
    double points;
  } table[] = {{kMillimeterRuler, "8", "8 mm", "1 mm", 8 * kMillimetre},
               {kPointRuler, "0", "0.01 pt", "2.835 pt", 0.01},
               {kInchRuler, "6 mm", "0.2362 in", "0.0394 in", 0.2362 * 72},
               {kPointRuler, "99999", "10000 pt", "2.835 pt", 10000},
               {kCentimeterRuler, "nonsense", "0.6 cm", "0.1 cm", 6 * kMillimetre}};
  for (const auto& row : table) {
    SCOPED_TRACE(row.size);
    world.document().setRulerUnits(row.ruler);
    preferences.put("Corvane", "Size", 6 * kMillimetre);
    preferences.put("Corvane", "StrokeWeight", kMillimetre);
    run([&](MarksDialog& d) {
      d.type(d.size(), row.typed);
      EXPECT_EQ(d.size().text().toStdString(), row.size);
      EXPECT_EQ(d.weight().text().toStdString(), row.weight);
      QTest::mouseClick(&d.radio("Marks Manually"), Qt::LeftButton);
    });
    EXPECT_NEAR(storedReal("Size"), row.points, 0.01);
    EXPECT_NEAR(storedReal("StrokeWeight"), kMillimetre, 0.003) << "but for what is not shown";
  }
}

TEST_F(MarksDialogTest, ChoicesAreStoredByOKAloneAndComeBackButForThePaints) {
  const ToolRecord* const tool = world.host.tools().selected();
  const auto leave = [](MarksDialog& d) {
    d.choose("Cross");
    d.type(d.size(), "33");
  };
  run(leave, "Cancel");
  EXPECT_EQ(stored("Shape"), -1);
  EXPECT_EQ(world.host.tools().selected(), tool);
  EXPECT_EQ(world.document().undoCount(), 0U);
  run([](MarksDialog& d) {
    EXPECT_EQ(d.shape().currentText(), "Round");
    EXPECT_EQ(d.size().text(), "17.008 pt");
    EXPECT_EQ(d.chosenRadio(), "Corner Marks");
    EXPECT_FALSE(d.slider().isEnabled());
    EXPECT_EQ(d.slider().maximum(), 10);
    EXPECT_EQ(d.slider().value(), 6);
    d.choose("Cross");
    d.clickNone();  // the bars vanish
    d.type(d.size(), "20");
    QTest::mouseClick(&d.radio("Auto Marks"), Qt::LeftButton);
    EXPECT_TRUE(d.slider().isEnabled());
    QTest::keyClick(&d.slider(), Qt::Key_End);
  });
  EXPECT_EQ(stored("Shape"), 2);
  EXPECT_EQ(stored("Action"), 3);
  EXPECT_EQ(stored("SelectedTool"), 1);
  EXPECT_DOUBLE_EQ(storedReal("Size"), 20);
  EXPECT_DOUBLE_EQ(storedReal("StrokeWeight"), 0);
  EXPECT_DOUBLE_EQ(storedReal("sliderrealvalue"), 1);
  EXPECT_EQ(world.host.tools().selected()->name, "brevia Register Cross Mark Tool");
  run([](MarksDialog& d) {
    EXPECT_EQ(d.shape().currentText(), "Cross");
    EXPECT_EQ(d.weight().text(), "2.835 pt") << "the black is back, and so is a weight";
    EXPECT_EQ(d.chosenRadio(), "Auto Marks");
    EXPECT_TRUE(d.slider().isEnabled());
    EXPECT_EQ(d.slider().value(), 10);
    QTest::mouseClick(&d.radio("Marks Manually"), Qt::LeftButton);
    EXPECT_FALSE(d.slider().isEnabled());
  });
  EXPECT_EQ(stored("Action"), 1);
}

}  // namespace
}  // namespace host
