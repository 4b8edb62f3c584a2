#include "Look.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QToolTip>
#include <optional>

#include "ControlStyle.h"
#include "Theme.h"
#include "ThemePalette.h"

namespace host {
namespace {

struct Brought {
  QPointer<QStyle> style;  // owned by the application, and gone with it
  Theme theme = Theme::Light;
};

Brought& brought() {
  static Brought last;
  return last;
}

void bringPalette(Theme theme) {
  const QPalette palette = themePalette(theme);
  QToolTip::setPalette(palette);
  QApplication::setPalette(palette);
}

}  // namespace

void bringLook() {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return;
  Brought& last = brought();
  const bool styled = last.style != nullptr;
  if (styled && last.theme == theme()) return;
  last.theme = theme();
  bringPalette(last.theme);
  if (styled) return;
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  last.style = new ControlStyle;
  QApplication::setStyle(last.style);
}

}  // namespace host
