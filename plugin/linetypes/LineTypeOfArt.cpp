#include "LineTypeOfArt.h"

#include "AICustomColor.h"
#include "CurrentDocument.h"
#include "IAIUnicodeString.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

constexpr AIReal kStrokePoints = 1;

bool HasLineTypeStroke(const AIPathStyle& style) {
  const AIStrokeStyle& stroke = style.stroke;
  return style.fillPaint == 0 && style.strokePaint != 0 && stroke.overprint != 0 &&
         stroke.color.kind == kCustomColor && stroke.width == LineTypeStrokeWidth();
}

bool IsRGBSpotColor(AICustomColorHandle color) {
  AICustomColor definition{};
  return sAICustomColor->GetCustomColor(color, &definition) == kNoErr &&
         definition.kind == kCustomThreeColor && (definition.flag & kCustomSpotColor) != 0;
}

AIErr ReadName(AICustomColorHandle color, std::string& name) {
  ai::UnicodeString text;
  if (const AIErr error = sAICustomColor->GetCustomColorName(color, text.handle())) return error;
  name = text.as_UTF8();
  return kNoErr;
}

}  // namespace

AIReal LineTypeStrokeWidth() {
  return kStrokePoints / GetDocumentScale();
}

void ApplyLineTypeStroke(const AIColor& color, AIPathStyle& style) {
  style.fillPaint = 0;
  style.strokePaint = 1;
  style.stroke.color = color;
  style.stroke.overprint = 1;
  style.stroke.width = LineTypeStrokeWidth();
}

bool LineTypeNameOfArt(AIArtHandle art, std::string& name) {
  AIPathStyle style{};
  if (sAIPathStyle->GetPathStyle(art, &style) != kNoErr || !HasLineTypeStroke(style)) return false;
  AICustomColorHandle color = style.stroke.color.c.c.color;
  if (!IsRGBSpotColor(color)) return false;
  std::string found;
  if (ReturnedCode([&] { return ReadName(color, found); }) != kNoErr || found.empty()) return false;
  name = std::move(found);
  return true;
}

}  // namespace Vandrell::Corvane
