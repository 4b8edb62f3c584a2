#include "ConvertSelection.h"

#include <optional>

#include "LineTypeOfArt.h"
#include "LineTypeSwatch.h"
#include "ReturnedCode.h"
#include "SelectionScan.h"
#include "SelectionTexts.h"
#include "ShowCriticalMessage.h"

namespace Vandrell::Corvane {
namespace {

std::optional<AIColor> PaintOf(const LineType& lineType) {
  AIColor paint{};
  const AIErr error = ReturnedCode([&] {
    const AISwatchRef swatch = FindSwatch(nullptr, lineType.name, kCustomColor);
    return swatch == nullptr ? kNoSuchItemErr : GetSwatchColor(swatch, &paint);
  });
  return error == kNoErr ? std::optional(paint) : std::nullopt;
}

bool Convert(AIArtHandle art, const AIColor& paint) {
  AIPathStyle style{};
  if (sAIPathStyle->GetPathStyle(art, &style) != kNoErr) return false;
  ApplyLineTypeStroke(paint, style);
  return sAIPathStyle->SetPathStyle(art, &style) == kNoErr;
}

}  // namespace

AIErr ConvertSelection(const LineType& lineType) {
  SelectionScan scan;
  ScanSelection(scan);
  if (scan.supported.empty() && scan.unsupported.empty()) return kNoErr;
  const std::optional<AIColor> paint = PaintOf(lineType);
  for (AIArtHandle art : scan.supported) {
    if (!paint || !Convert(art, *paint)) scan.unsupported.insert(art);
  }
  if (!scan.unsupported.empty()) qRVADM::ShowCriticalMessage(kNotAllConvertedText);
  return kNoErr;
}

}  // namespace Vandrell::Corvane
