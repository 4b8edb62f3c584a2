#include "FontKinds.h"

#include <QApplication>
#include <iterator>

namespace qRVADM {
namespace {

struct Look {
  int pixelSize;
  int weight;
  bool italic;
};

constexpr Look kLooks[] = {
    {12, QFont::Normal, false},  // kDialogFont
    {10, QFont::Normal, false},  // kPaletteFont
    {12, QFont::Normal, true},   // kDialogItalicFont
    {10, QFont::Normal, true},   // kPaletteItalicFont
    {12, QFont::Bold, false},    // kHeadingFont
    {10, QFont::Bold, false},    // kPaletteBoldFont
    {12, QFont::Bold, true},     // kDialogBoldItalicFont
    {10, QFont::Bold, true},     // kPaletteBoldItalicFont
    {12, QFont::Normal, false},  // kFixedFont
    {12, QFont::Normal, true},   // kFixedItalicFont
    {12, QFont::Bold, false},    // kFixedBoldFont
    {12, QFont::Bold, true},     // kFixedBoldItalicFont
    {11, QFont::Normal, false},  // kMediumFont
};

}  // namespace

QFont FontOfKind(const QFont& font, int kind) {
  if (kind < kDialogFont || kind > kMediumFont) return QApplication::font();
  const Look& look = kLooks[kind - kDialogFont];
  QFont result = font;
  result.setPixelSize(look.pixelSize);
  result.setWeight(look.weight);
  result.setItalic(look.italic);
  if (kind >= kFixedFont && kind <= kFixedBoldItalicFont) {
    result.setFamily(QStringLiteral("Menlo,Monaco"));
    result.setStyleHint(QFont::Monospace);  // where neither is installed
  }
  return result;
}

}  // namespace qRVADM
