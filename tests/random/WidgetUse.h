// What a user may do to a widget, whatever it is.
#pragma once

#include <QPoint>

class QMenu;
class QWidget;

namespace host {

class Chance;
class Diary;

// Something that its kind invites to: a click, a choice, a text.
void useWidget(QWidget& widget, Chance& chance, Diary& diary);
// A visible and enabled widget inside that can be used; null if there is none.
QWidget* anyWidgetIn(const QWidget& top, Chance& chance);
// Chooses an entry of a menu that is open, or leaves it.
void useMenu(QMenu& menu, Chance& chance, Diary& diary);

Qt::KeyboardModifiers anyModifiers(Chance& chance);
QPoint anyPointIn(const QWidget& widget, Chance& chance);
// Presses, moves in steps and releases.
void drag(QWidget& widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers,
          Qt::MouseButton button);

}  // namespace host
