#include "Tones.h"

#include <QStyleOption>

namespace host::look {
namespace {

constexpr double kHoverShare = 0.09;
constexpr double kPressedShare = 0.18;

double reactionShare(const QStyleOption& option) {
  if (isPressed(option)) return kPressedShare;
  return isUnderPointer(option) ? kHoverShare : 0;
}

}  // namespace

Tones::Tones(const QPalette& palette)
    : ground(palette.color(QPalette::Window)),
      field(palette.color(QPalette::Base)),
      face(palette.color(QPalette::Button)),
      groove(palette.color(QPalette::Midlight)),
      outline(palette.color(QPalette::Mid)),
      line(palette.color(QPalette::Dark)),
      text(palette.color(QPalette::WindowText)),
      faceText(palette.color(QPalette::ButtonText)),
      faint(mixed(text, ground, 0.35)),
      accent(palette.color(QPalette::Highlight)),
      onAccent(palette.color(QPalette::HighlightedText)),
      ring(palette.color(QPalette::Link)) {}

Tones::Tones(const QStyleOption& option) : Tones(option.palette) {}

QColor mixed(const QColor& from, const QColor& to, double share) {
  const auto part = [share](qreal a, qreal b) { return a + (b - a) * share; };
  return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                          part(from.blueF(), to.blueF()), part(from.alphaF(), to.alphaF()));
}

QColor reacting(const QColor& ground, const QColor& text, const QStyleOption& option) {
  return mixed(ground, text, reactionShare(option));
}

QColor reactingAccent(const Tones& tones, const QStyleOption& option) {
  return mixed(tones.accent, Qt::black, reactionShare(option) * 1.2);
}

bool isEnabled(const QStyleOption& option) {
  return (option.state & QStyle::State_Enabled) != 0;
}

bool isUnderPointer(const QStyleOption& option) {
  return isEnabled(option) && (option.state & QStyle::State_MouseOver) != 0;
}

bool isPressed(const QStyleOption& option) {
  return isEnabled(option) && (option.state & QStyle::State_Sunken) != 0;
}

bool isOn(const QStyleOption& option) {
  return (option.state & QStyle::State_On) != 0;
}

bool showsRing(const QStyleOption& option) {
  constexpr QStyle::State both = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  return (option.state & both) == both;
}

}  // namespace host::look
