#include "PaletteRoles.h"

#include <QWidget>
#include <algorithm>
#include <iterator>

namespace qRVADM {

bool IsField(const QWidget& widget) {
  constexpr const char* kFields[] = {"QLineEdit", "QTextEdit", "QPlainTextEdit", "QAbstractSpinBox",
                                     "QAbstractItemView"};
  return std::any_of(std::begin(kFields), std::end(kFields),
                     [&](const char* name) { return widget.inherits(name); });
}

QPalette::ColorRole TextRole(QPalette::ColorRole foreground, QPalette::ColorRole background, bool isField) {
  if (foreground != QPalette::NoRole) return foreground;
  return BackgroundRole(background, isField) == QPalette::Base ? QPalette::Text : QPalette::WindowText;
}

QPalette::ColorRole BackgroundRole(QPalette::ColorRole background, bool isField) {
  if (background != QPalette::NoRole) return background;
  return isField ? QPalette::Base : QPalette::Window;
}

}  // namespace qRVADM
