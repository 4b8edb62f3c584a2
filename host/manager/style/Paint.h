// What a painting function of the control style is handed.
#pragma once

class QPainter;
class QStyle;
class QStyleOption;
class QWidget;

namespace host::look {

struct Paint {
  const QStyleOption& option;
  QPainter& painter;
  const QWidget* widget;  // may be null
  const QStyle& style;    // the whole style, for parts that other functions paint
  const QStyle& plain;    // the style below, for texts
};

using PaintFunction = void (*)(const Paint&);

}  // namespace host::look
