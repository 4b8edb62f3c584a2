// The few icons of Qt's own widgets that have to follow the theme.
#pragma once

#include <QIcon>
#include <QStyle>

namespace host::look {

// Null: the style below has it. Painted at any resolution, in the text colour of the application at the time
// of painting.
QIcon glyph(QStyle::StandardPixmap which);

}  // namespace host::look
