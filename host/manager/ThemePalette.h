// The colours of the interface in each theme.
#pragma once

#include <QColor>
#include <QPalette>

#include "Theme.h"

namespace host {

// Every role of every group is set, so that it overrides whatever a widget would inherit. What the control
// style makes of the roles: Button is the face of a control, Mid the outline of one, Dark a line that
// separates, Midlight the ground of headers and grooves, Highlight the accent that white text stands on, Link
// the accent on the window's ground.
QPalette themePalette(Theme theme);

// Of a field that is being edited: light in both themes, as pictures in such a field are drawn for.
QPalette activeFieldPalette(const QPalette& around);

// What the shared icons are drawn in.
QColor iconInk(Theme theme);

}  // namespace host
