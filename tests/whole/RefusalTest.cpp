// Everything that a user can do, with the host refusing one call or one kind of call.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QtTest/QTest>

#include "AINotifier.h"
#include "AnnotatorMessages.h"
#include "RefusalSweep.h"

namespace host {
namespace {

constexpr char kNoticesKey[] = "Legal Notices...";

void nothing(RefusalWorld&) {}

QList<QPointer<QWidget>> pointersTo(const QList<QWidget*>& widgets) {
  return {widgets.begin(), widgets.end()};
}

template <std::int32_t shape, std::int32_t action>
void options(RefusalWorld& world) {
  world.setOptions(shape, action, 60, 0.5);
}
template <AIToolType number>
void selectTool(RefusalWorld& world) {
  world.setOptions(0, 1, 60, 0.5);
  world.tools->choose(world.tool(1 - number));
  world.tools->choose(world.tool(number));
}
template <AIToolType number>
void chooseTool(RefusalWorld& world) {
  world.tools->choose(world.tool(number));
}
void press(RefusalWorld& world) {
  world.note(world.tools->mouseDown({10, 10}));
}
void movePointer(RefusalWorld& world) {
  for (const auto move : {&ToolMessages::trackCursor, &ToolMessages::mouseDrag, &ToolMessages::mouseUp}) {
    world.note((*world.tools.*move)({10, 10}));
  }
}
template <AIToolType number>
void editOptions(RefusalWorld& world) {
  world.note(world.tools->editOptions(world.tool(number)));
}
void chooseMarks(RefusalWorld& world) {
  world.choose(kMarksKey);
}

void palette(RefusalWorld& world) {
  world.select({});
  world.showPalette(false);
  world.showPalette(true);
}
void paletteWithRow(RefusalWorld& world) {
  palette(world);
  world.clickRow(1);
}
template <bool isPainted>
void paletteWithArt(RefusalWorld& world) {
  palette(world);
  world.select({"low", "high"});
  world.settle();
  if (isPainted) world.clickRow(1);
}

// Every item of the dialog but its text buttons.
void useEverything(QDialog& dialog) {
  for (const QPointer<QWidget>& item : pointersTo(dialog.findChildren<QWidget*>())) {
    if (item == nullptr || !item->isVisible() || !item->isEnabled() ||
        qobject_cast<QPushButton*>(item) != nullptr)
      continue;
    if (auto* list = qobject_cast<QListWidget*>(item)) {
      for (int row = 0; row < list->count(); ++row) {
        if (list->isRowHidden(row)) continue;
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
      }
    } else if (qobject_cast<QAbstractSpinBox*>(item) != nullptr) {
      QTest::keyClicks(item, "7");
      QTest::keyClick(item, Qt::Key_Tab);
    } else if (qobject_cast<QComboBox*>(item) != nullptr || qobject_cast<QAbstractSlider*>(item) != nullptr) {
      QTest::keyClick(item, Qt::Key_Down);
    } else {
      QTest::mouseClick(item, Qt::LeftButton);
      if (item != nullptr && qobject_cast<QAbstractButton*>(item) == nullptr)
        QTest::mouseDClick(item, Qt::LeftButton);
    }
  }
}

void leave(QDialog& dialog) {
  QTest::keyClick(&dialog, Qt::Key_Escape);
}

constexpr char kNotAllPlaced[] =
    "Not all regmarks are placed because not enough space in the current artboard.";
constexpr char kNotAdded[] = "Could not add regmarks because the regmark layer is locked or hidden.";
constexpr char kNotWritten[] = "The custom layer file could not be written in the presets folder.";
constexpr char kNotConverted[] = "One or more objects could not be converted.";
constexpr char kNotMoved[] = "One or more objects could not be moved to a Line Type Layer.";

constexpr Sweep kSweeps[] = {
    {"corner marks", options<0, 1>, chooseMarks, Tells::Nothing, kNotAllPlaced},
    {"crosses at corners", options<1, 1>, chooseMarks, Tells::Nothing, kNotAllPlaced},
    {"auto marks", options<0, 2>, chooseMarks, Tells::Nothing},
    {"edge marks", options<1, 3>, chooseMarks, Tells::Nothing, kNotAllPlaced},
    {"options used", options<0, 1>,
     [](RefusalWorld& world) {
       world.hands = [](QDialog& dialog) {
         useEverything(dialog);
         dialog.findChild<QRadioButton*>()->click();  // marks manually
       };
       world.choose(kMarksKey);
     },
     Tells::Nothing},
    {"options left", options<0, 1>,
     [](RefusalWorld& world) {
       world.hands = leave;
       world.choose(kMarksKey);
     },
     Tells::Nothing},
    {"palette shown and hidden", palette,
     [](RefusalWorld& world) {
       world.choose(kPaletteKey);
       world.choose(kPaletteKey);
     },
     Tells::Nothing},
    {"legal notices", nothing, [](RefusalWorld& world) { world.choose(kNoticesKey); }, Tells::Nothing},
    {"preferences used",
     [](RefusalWorld& world) {
       world.writeCustomFile();
       palette(world);
     },
     [](RefusalWorld& world) {
       world.hands = useEverything;
       world.choose(kPreferencesKey);
     },
     Tells::Code, kNotWritten, "A plug-in failed: AI Exception."},
    {"preferences left", palette,
     [](RefusalWorld& world) {
       world.hands = leave;
       world.choose(kPreferencesKey);
     },
     Tells::Code},
    {"rows of the palette", palette, [](RefusalWorld& world) { world.clickRow(1); }, Tells::Nothing},
    {"create layers", paletteWithRow, [](RefusalWorld& world) { world.pressPaletteButton(); },
     Tells::Nothing},
    {"paint", paletteWithArt<false>, [](RefusalWorld& world) { world.clickRow(1); }, Tells::Message,
     kNotConverted},
    {"move", paletteWithArt<true>, [](RefusalWorld& world) { world.pressPaletteButton(); }, Tells::Message,
     kNotMoved},
    {"round tool selected", selectTool<1>, chooseTool<0>, Tells::Nothing},
    {"cross tool selected", selectTool<0>, chooseTool<1>, Tells::Nothing},
    {"the same tool selected", selectTool<0>, chooseTool<0>, Tells::Nothing},
    {"pointer of the round tool", selectTool<0>, movePointer, Tells::Nothing},
    {"pointer of the cross tool", selectTool<1>, movePointer, Tells::Nothing},
    {"round mark by hand", selectTool<0>, press, Tells::CodeAndMessage, kNotAdded},
    {"cross by hand", selectTool<1>, press, Tells::CodeAndMessage, kNotAdded},
    {"options of the round tool", selectTool<0>, editOptions<0>, Tells::Code, kNotAllPlaced},
    {"options of the cross tool", selectTool<1>, editOptions<1>, Tells::Code, kNotAllPlaced},
    {"table head", selectTool<0>,
     [](RefusalWorld& world) {
       const OpenDocument& open = *world.host.documents().current();
       drawAnnotations(world.host, world.session, open, world);
       invalidateAnnotations(world.host, world.session, open);
     },
     Tells::Nothing},
    {"documents and theme", paletteWithArt<false>,
     [](RefusalWorld& world) {
       world.tools->choose(world.tool(0));
       world.session.closeDocument(*world.drawing.document);
       world.settle();
       world.open();
       world.session.notify(kAIUIBrightnessChangedNotifier);
       world.session.notify(kAISaveUserDataNotifier);
     },
     Tells::Nothing},
};

class RefusalSweep : public testing::TestWithParam<Sweep> {};
TEST_P(RefusalSweep, LeavesTheProductAtWork) {
  sweep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Actions, RefusalSweep, testing::ValuesIn(kSweeps), [](const auto& row) {
  std::string name;
  for (const char c : std::string(row.param.name)) {
    if (c != ' ') name += c;
  }
  return name;
});

}  // namespace
}  // namespace host
