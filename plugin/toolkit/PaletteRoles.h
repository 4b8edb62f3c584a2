// Which roles of the palette a widget's text and background are drawn in.
#pragma once

#include <QPalette>

class QWidget;

namespace qRVADM {

// A line edit, text edit, plain text edit, spin box or item view: what shows its contents on paper.
bool IsField(const QWidget& widget);

// From the widget's own roles, either of which may be QPalette::NoRole.
QPalette::ColorRole TextRole(QPalette::ColorRole foreground, QPalette::ColorRole background, bool isField);
QPalette::ColorRole BackgroundRole(QPalette::ColorRole background, bool isField);

}  // namespace qRVADM
