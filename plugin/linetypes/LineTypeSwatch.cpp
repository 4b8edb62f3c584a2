#include "LineTypeSwatch.h"

#include "AISwatchGroup.h"
#include "HMX_AICustomColorHandle.h"

namespace Vandrell::Corvane {
namespace {

AISwatchGroupRef EnsureSwatchGroup(const char* groupName) {
  const ai::UnicodeString name(groupName, kAIPlatformCharacterEncoding);
  AISwatchGroupRef group = sAISwatchGroup->GetGroupByName(nullptr, name.handle());
  if (group != nullptr) return group;
  group = sAISwatchGroup->NewGroup(nullptr, kAISwatchGroupKindPlain, -1);
  if (group != nullptr) sAISwatchGroup->SetGroupName(group, name.handle());
  return group;
}

// From the definition of a custom colour to a paint of that colour in full strength.
void MakeCustomColor(LineType& type) {
  const HMX_AICustomColorHandle made(&type.customColor, type.name);
  type.color = AIColor();
  type.color.kind = kCustomColor;
  type.color.c.c = {made.color, 0};
  type.isCustomDataModel = false;
}

}  // namespace

AISwatchRef EnsureLineTypeSwatch(LineType& type, const char* groupName) {
  if (AISwatchRef swatch = FindSwatch(nullptr, type.name, kCustomColor); swatch != nullptr) {
    type.color = AIColor();
    type.isCustomDataModel = false;
    GetSwatchColor(swatch, &type.color);
    return swatch;
  }
  const bool isPlainPaint = !type.isCustomDataModel && type.color.kind != kCustomColor;
  if (isPlainPaint) {
    if (AISwatchRef swatch = FindSwatch(nullptr, type.name, type.color.kind); swatch != nullptr)
      return swatch;
  }
  AISwatchGroupRef group = EnsureSwatchGroup(groupName);
  if (type.isCustomDataModel) MakeCustomColor(type);
  AISwatchRef swatch = sAISwatchGroup->AddSwatch(group, &type.color, 0);
  if (swatch != nullptr) sAISwatchList->SetSwatchName(swatch, type.name.handle());
  return swatch;
}

AISwatchRef FindSwatch(AISwatchListRef list, const ai::UnicodeString& name, AIColorTag type) {
  return sAISwatchList->GetSwatchByNameAndType(list, name.handle(), type);
}

AIErr GetSwatchColor(AISwatchRef swatch, AIColor* color) {
  return sAISwatchList->GetAIColor(swatch, color);
}

}  // namespace Vandrell::Corvane
