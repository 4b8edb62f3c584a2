// Which function paints which part of a control.
#pragma once

#include <QStyle>

#include "Paint.h"

namespace host::look {

// Null: the style below paints it.
PaintFunction painterOf(QStyle::PrimitiveElement element);
PaintFunction painterOf(QStyle::ControlElement element);
PaintFunction painterOf(QStyle::ComplexControl control);

}  // namespace host::look
