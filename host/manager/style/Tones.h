// The colours of a control, from the palette it stands in and its state.
#pragma once

#include <QColor>
#include <QPalette>

class QStyleOption;

namespace host::look {

struct Tones {
  explicit Tones(const QPalette& palette);
  explicit Tones(const QStyleOption& option);

  QColor ground, field, face, groove;
  QColor outline, line;  // around a control; between parts
  QColor text, faceText, faint;
  QColor accent, onAccent;
  QColor ring;  // around what has the keyboard
};

// `share` of `to`, between 0 and 1, in `from`.
QColor mixed(const QColor& from, const QColor& to, double share);
// A ground under the pointer or pressed goes towards the text, so it darkens in the light theme and lightens
// in the dark one.
QColor reacting(const QColor& ground, const QColor& text, const QStyleOption& option);
// The same on the accent, which only darkens: what stands on it stays readable.
QColor reactingAccent(const Tones& tones, const QStyleOption& option);

bool isEnabled(const QStyleOption& option);
bool isUnderPointer(const QStyleOption& option);
bool isPressed(const QStyleOption& option);
bool isOn(const QStyleOption& option);
// It has the keyboard, and got it by the keyboard.
bool showsRing(const QStyleOption& option);

}  // namespace host::look
