// Menus that drop down or pop up.
#pragma once

#include <QSize>

#include "Paint.h"

class QStyleOptionMenuItem;

namespace host::look {

void menuPanel(const Paint& paint);
void menuItem(const Paint& paint);

// `text` is the room that the text and its icon take.
QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& text, const QWidget* widget);

}  // namespace host::look
