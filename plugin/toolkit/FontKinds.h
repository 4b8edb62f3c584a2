// The fonts of dialogs, by kind.
#pragma once

#include <QFont>

namespace qRVADM {

enum FontKind : int {
  kDialogFont = 1,   // items of modal dialogs
  kPaletteFont = 2,  // items of palettes, body text under a heading
  kDialogItalicFont = 3,
  kPaletteItalicFont = 4,
  kHeadingFont = 5,  // of message dialogs
  kPaletteBoldFont = 6,
  kDialogBoldItalicFont = 7,
  kPaletteBoldItalicFont = 8,
  kFixedFont = 9,  // kinds 9 to 12 are of fixed width
  kFixedItalicFont = 10,
  kFixedBoldFont = 11,
  kFixedBoldItalicFont = 12,
  kMediumFont = 13,
};

// `font`, which is a widget's, in the size, weight and slant of the kind. Fixed width kinds come in a family
// of their own. For any other number the application's font.
QFont FontOfKind(const QFont& font, int kind);

}  // namespace qRVADM
