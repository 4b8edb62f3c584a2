#include "CutOption.h"

#include "AIPreference.h"
#include "AutoMarkCount.h"
#include "RegmarkColors.h"

namespace Vandrell::Corvane {
namespace {

constexpr double kDefaultSliderFraction = 0.5;

constexpr char kSizeKey[] = "Size";
constexpr char kStrokeWeightKey[] = "StrokeWeight";
// The slider's place on its scale, not the count: the same choice gives more marks on larger art.
constexpr char kSliderKey[] = "sliderrealvalue";
constexpr char kShapeKey[] = "Shape";
constexpr char kActionKey[] = "Action";

// Shape and action are stored one higher than they are.
void LoadChoice(const char* key, std::uint32_t& choice) {
  auto stored = static_cast<std::int32_t>(choice + 1U);
  sAIPreference->GetIntegerPreference(kRegmarkPreferencePrefix, key, &stored);
  choice = static_cast<std::uint32_t>(stored) - 1U;
}

void SaveChoice(const char* key, std::uint32_t choice) {
  sAIPreference->PutIntegerPreference(kRegmarkPreferencePrefix, key, static_cast<std::int32_t>(choice + 1U));
}

}  // namespace

CutOption::CutOption()
    : maxCount(MaxAutoMarkCount()),
      count(AutoMarkCountFromSlider(kDefaultSliderFraction)),
      fillColor(BlackRegmarkColor()),
      strokeColor(NoRegmarkColor()) {}

CutOption::~CutOption() = default;

void CutOption::LoadPreferences() {
  double fraction = kDefaultSliderFraction;
  sAIPreference->GetRealPreference(kRegmarkPreferencePrefix, kSizeKey, &size);
  sAIPreference->GetRealPreference(kRegmarkPreferencePrefix, kStrokeWeightKey, &strokeWeight);
  sAIPreference->GetRealPreference(kRegmarkPreferencePrefix, kSliderKey, &fraction);
  count = AutoMarkCountFromSlider(fraction);
  LoadChoice(kShapeKey, shape);
  LoadChoice(kActionKey, action);
}

void CutOption::SavePreferences() const {
  sAIPreference->PutRealPreference(kRegmarkPreferencePrefix, kSizeKey, size);
  sAIPreference->PutRealPreference(kRegmarkPreferencePrefix, kStrokeWeightKey, strokeWeight);
  sAIPreference->PutRealPreference(kRegmarkPreferencePrefix, kSliderKey, SliderFromAutoMarkCount(count));
  SaveChoice(kShapeKey, shape);
  SaveChoice(kActionKey, action);
}

}  // namespace Vandrell::Corvane
