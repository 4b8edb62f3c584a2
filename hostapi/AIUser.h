// Alerts, cursors, colours, and the scale of the interface.
#pragma once

#include "AIColor.h"
#include "AITypes.h"

constexpr char kAIUserSuite[] = "AI User Suite";
constexpr std::int32_t kAIUserSuiteVersion = 1018;

// How an expression is to be read, and in what the result comes.
struct AIExpressionOptions {
  // 1 pt, 2 in, 3 mm, 4 cm, 5 pc, 6 %, 7 degrees, 8 Q (a quarter of a mm), 10 px (one is a pt), 12 ft, 15 m,
  // 16 yd; any other, 0 among them, is a plain number.
  std::int32_t unit;
  AIReal minimum, maximum;  // in `unit`; the result is held between these
  AIReal defaultValue;      // in `unit`: what a percentage is of
  std::int16_t precision;   // decimals of the evaluated text, not negative
};

struct AIUserSuite {
  // Both return when the user has answered; without a window the text goes to standard error.
  AIErr (*MessageAlert)(AIUnicodeStringHandle text);
  AIErr (*ErrorAlert)(AIUnicodeStringHandle text);
  // A plug-in's cursor pictures; disposed of by the plug-in.
  AIErr (*CreateCursorResourceMgr)(SPPluginRef plugin, AIResourceManagerHandle* manager);
  AIErr (*DisposeCursorResourceMgr)(AIResourceManagerHandle manager);
  // The pointer over the drawing, until the next message that tracks it: a picture by resource id in the
  // manager's plug-in, whose middle is the hot spot. The host has a cross where there is no such picture.
  AIErr (*SetCursor)(std::int32_t cursorID, AIResourceManagerHandle manager);
  // The host's dialog for an RGB colour; an empty title is the host's own. Returns when the user has
  // answered. `color` is the one to start with and the chosen one when `accepted` is set, else as it was. A
  // host that must not ask answers with `accepted` 0.
  AIErr (*GetRGBColor)(AIUnicodeStringHandle title, AIRGBColor* color, AIBoolean* accepted);
  // How many pixels of the screen a unit of the host's interface has, above 0.
  AIErr (*GetUIScaleFactor)(AIReal* factor);
  // A number as text: "." as decimal sign in every language, no grouping, no exponent. `fixed` not 0: exactly
  // `precision` decimals, otherwise without zeros at the end. Halves, those of the shortest decimal number
  // that `value` is known by, go away from 0. kBadParameterErr if `value` is not finite or `precision`
  // negative.
  AIErr (*RealToString)(AIReal value, std::int16_t precision, AIBoolean fixed, AIUnicodeStringHandle text);
  // Works out what a user typed: numbers with "," or "." as decimal sign, units in their usual spellings, + -
  // * / and parentheses, picas as "3p6", feet and inches as 5'6". A number without a unit is in the options'
  // unit where a quantity is called for. A percentage scales what it is multiplied with or divides, is itself
  // in a field in percent, and elsewhere is of `defaultValue`. `flag` is 1 if the text could not be read,
  // else 0; unreadable are also an empty text, quantities that do not go together, a division by 0, and a
  // number with two decimal signs. `result` is then `defaultValue`. `evaluated`, which may be null, takes the
  // result as text. kBadParameterErr if a number of the options is not finite, or minimum above maximum.
  AIErr (*EvaluateExpression)(AIUnicodeStringHandle expression, const AIExpressionOptions* options,
                              AIUnicodeStringHandle evaluated, AIBoolean* flag, AIReal* result);
};

extern const AIUserSuite* sAIUser;
