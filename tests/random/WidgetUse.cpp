#include "WidgetUse.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QtTest/QTest>
#include <initializer_list>
#include <vector>

#include "Chance.h"
#include "Diary.h"

namespace host {
namespace {

constexpr const char* kTexts[] = {"0",    "1",        "5 mm",      "-3",       "99999", "abc",
                                  "",     "0.25in",   "12.5",      "Kiss Cut", "Cut",   " kiss cut ",
                                  "1e30", "a/b (c)#", "Schnitt ä", "切る 😀",   "<b>&",  "\\\"'"};
constexpr Qt::Key kKeys[] = {Qt::Key_Up,     Qt::Key_Down,  Qt::Key_Home, Qt::Key_End,
                             Qt::Key_PageUp, Qt::Key_Space, Qt::Key_Tab,  Qt::Key_PageDown};

template <typename Widget>
bool is(const QWidget& widget) {
  return qobject_cast<const Widget*>(&widget) != nullptr;
}

std::string called(const QWidget& widget) {
  std::string name = widget.metaObject()->className();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    name += " \"" + button->text().toStdString() + "\"";
  }
  return name + " \"" + widget.accessibleName().toStdString() + "\"";
}

void typeInto(QWidget& widget, Chance& chance, Diary& diary) {
  const char* const text = chance.anyOf(kTexts);
  diary.note("types \"" + std::string(text) + "\" into " + called(widget));
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  QInputMethodEvent typed;
  typed.setCommitString(text);
  QApplication::sendEvent(&widget, &typed);
  QTest::keyClick(&widget, chance.oneIn(2) ? Qt::Key_Tab : Qt::Key_Return);
}

void pressKey(QWidget& widget, Chance& chance, Diary& diary) {
  const Qt::Key key = chance.anyOf(kKeys);
  diary.note("presses key " + std::to_string(key) + " on " + called(widget));
  QTest::keyClick(&widget, key, chance.oneIn(4) ? anyModifiers(chance) : Qt::KeyboardModifiers());
}

void click(QWidget& widget, Chance& chance, Diary& diary) {
  const QPoint place = is<QAbstractButton>(widget) ? widget.rect().center() : anyPointIn(widget, chance);
  const Qt::KeyboardModifiers modifiers = anyModifiers(chance);
  const int way = chance.below(8);
  diary.note((way == 0   ? "double-clicks "
              : way == 1 ? "right-clicks "
                         : "clicks ") +
             called(widget) + " at " + std::to_string(place.x()) + "," + std::to_string(place.y()) +
             " with " + std::to_string(static_cast<int>(modifiers)));
  if (way == 1) {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &asked);
  } else if (way == 0) {
    const QPointer<QWidget> there(&widget);
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers, place);
    if (there) QTest::mouseDClick(&widget, Qt::LeftButton, modifiers, place);
  } else {
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers, place);
  }
}

bool isUsable(const QWidget& widget) {
  if (!widget.isVisible() || !widget.isEnabled() || widget.size().isEmpty()) return false;
  for (QObject* holder = widget.parent(); holder != nullptr; holder = holder->parent()) {
    if (qobject_cast<QAbstractSpinBox*>(holder) != nullptr) return false;
  }
  return !is<QLabel>(widget) && !is<QDialogButtonBox>(widget) && !is<QMenuBar>(widget) &&
         !is<QMenu>(widget) && !is<QStatusBar>(widget) && !is<QMainWindow>(widget) && !widget.isWindow();
}

}  // namespace

void useWidget(QWidget& widget, Chance& chance, Diary& diary) {
  if ((is<QAbstractSpinBox>(widget) || is<QLineEdit>(widget)) && !chance.oneIn(4)) {
    return typeInto(widget, chance, diary);
  }
  const bool hasKeys = is<QAbstractSpinBox>(widget) || is<QComboBox>(widget) || is<QAbstractSlider>(widget) ||
                       is<QAbstractItemView>(widget);
  if (hasKeys && !chance.oneIn(3)) return pressKey(widget, chance, diary);
  if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
    return click(*view->viewport(), chance, diary);
  }
  click(widget, chance, diary);
}

QWidget* anyWidgetIn(const QWidget& top, Chance& chance) {
  std::vector<QWidget*> usable;
  for (QWidget* widget : top.findChildren<QWidget*>()) {
    if (isUsable(*widget)) usable.push_back(widget);
  }
  return usable.empty() ? nullptr : chance.anyOf(usable);
}

void useMenu(QMenu& menu, Chance& chance, Diary& diary) {
  std::vector<QAction*> choices;
  for (QAction* action : menu.actions()) {
    if (action->isEnabled() && action->isVisible() && !action->isSeparator()) choices.push_back(action);
  }
  if (choices.empty() || chance.oneIn(5)) {
    diary.note("leaves a menu");
    QTest::keyClick(&menu, Qt::Key_Escape);
    return;
  }
  QAction* const chosen = chance.anyOf(choices);
  diary.note("chooses \"" + chosen->text().toStdString() + "\"");
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(chosen).center());
}

Qt::KeyboardModifiers anyModifiers(Chance& chance) {
  constexpr Qt::KeyboardModifier kAll[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
  Qt::KeyboardModifiers modifiers;
  for (const Qt::KeyboardModifier modifier : kAll) {
    if (chance.oneIn(5)) modifiers |= modifier;
  }
  return modifiers;
}

QPoint anyPointIn(const QWidget& widget, Chance& chance) {
  return {chance.below(widget.width()), chance.below(widget.height())};
}

void drag(QWidget& widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers,
          Qt::MouseButton button) {
  const QPointer<QWidget> there(&widget);
  QTest::mousePress(&widget, button, modifiers, from);
  for (const QPoint& place : {(from + to) / 2, to}) {
    if (!there) return;
    QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, button, modifiers);
    QApplication::sendEvent(&widget, &move);
  }
  if (there) QTest::mouseRelease(&widget, button, modifiers, to);
}

}  // namespace host
