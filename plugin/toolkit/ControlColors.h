// Colours of custom drawing, by code. They follow the palette of the widget that is drawn.
#pragma once

#include <QColor>
#include <cstdint>

class QWidget;

namespace qRVADM {

enum ControlColor : std::uint32_t {
  kTextColor = 0,
  kBackgroundColor = 1,
  kHighlightColor = 2,
  kHighlightedTextColor = 3,
  kLightColor = 4,
  kWindowColor = 5,  // also 13
  kShadowColor = 6,
  kDisabledTextColor = 7,
  kWindowTextColor = 15,  // also 14
  kWarningColor = 16,     // the text colour turned to red
  kLinkColor = 111,
  kControlColor = 112,  // the manager library's, for separators
  kSameColor = 254,     // as it was
};

// Any code beyond ControlColor is a colour itself: 0xRRGGBBxx, opaque, the low byte of no account. `current`
// is what kSameColor gives.
QColor ColorOfCode(const QWidget& widget, std::uint32_t code, const QColor& current);

}  // namespace qRVADM
