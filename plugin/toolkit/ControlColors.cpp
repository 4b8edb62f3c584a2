#include "ControlColors.h"

#include <QWidget>
#include <algorithm>

#include "PaletteRoles.h"
#include "QtManager.h"

namespace qRVADM {
namespace {

QPalette::ColorGroup GroupOf(const QWidget& widget) {
  return widget.isEnabled() ? QPalette::Active : QPalette::Disabled;
}

QColor FromPalette(const QWidget& widget, QPalette::ColorRole role) {
  return widget.palette().color(GroupOf(widget), role);
}

QColor TextColor(const QWidget& widget) {
  return FromPalette(widget, TextRole(widget.foregroundRole(), widget.backgroundRole(), IsField(widget)));
}

// Stands out against the background that the text stands out against.
QColor WarningColor(const QColor& text) {
  const double lightness = text.lightnessF();
  const double others = std::max(lightness - 0.5, 0.0);
  return QColor::fromRgbF(std::min(lightness + 0.5, 1.0), others, others);
}

QColor Unpacked(std::uint32_t code) {
  return QColor::fromRgb(QRgb{code >> 8});
}

QColor Resolved(const QWidget& widget, std::uint32_t code, const QColor& current) {
  switch (code) {
    case kTextColor:
      return TextColor(widget);
    case kBackgroundColor:
      return FromPalette(widget, BackgroundRole(widget.backgroundRole(), IsField(widget)));
    case kHighlightColor:
      return FromPalette(widget, QPalette::Highlight);
    case kHighlightedTextColor:
      return FromPalette(widget, QPalette::HighlightedText);
    case kLightColor:
      return FromPalette(widget, QPalette::Light);
    case kWindowColor:
    case 13:
      return FromPalette(widget, QPalette::Window);
    case kShadowColor:
      return FromPalette(widget, QPalette::Shadow);
    case kDisabledTextColor:
      return widget.palette().color(QPalette::Disabled, QPalette::WindowText);
    case 14:
    case kWindowTextColor:
      return FromPalette(widget, QPalette::WindowText);
    case kWarningColor:
      return WarningColor(TextColor(widget));
    case kLinkColor:
      return FromPalette(widget, QPalette::Link);
    case kControlColor:
      return RVADMQtManager::QtManager::GetControlColor(&widget, RVADMQtManager::kControlBackground,
                                                        widget.isEnabled());
    case kSameColor:
      return current;
    default:
      return Unpacked(code);
  }
}

}  // namespace

QColor ColorOfCode(const QWidget& widget, std::uint32_t code, const QColor& current) {
  QColor color = Resolved(widget, code, current);
  if (widget.inherits("QGLWidget")) color.setAlpha(255);  // it shows what is behind the window otherwise
  return color;
}

}  // namespace qRVADM
