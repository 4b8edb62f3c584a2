#include "RulerUnits.h"

#include <cstddef>
#include <iterator>

#include "AIDocument.h"
#include "AIPreference.h"

namespace qRVADM {
namespace {

// By the number that the host's preference has.
constexpr AIRulerUnits kPreferred[] = {kInchRuler,       kMillimeterRuler, kPointRuler,      kPicaRuler,
                                       kCentimeterRuler, kPointRuler,      kPixelRuler,      kFootRuler,
                                       kMeterRuler,      kYardRuler,       kFootAndInchRuler};
constexpr std::int32_t kPreferredPoints = 2;

constexpr ADMUnits kUnitOfRuler[] = {kNoUnits,   kInchUnits,       kCentimeterUnits, kPointUnits,
                                     kPicaUnits, kMillimeterUnits, kPixelUnits,      kQUnits,
                                     kFootUnits, kMeterUnits,      kYardUnits,       kFootAndInchUnits};

AIRulerUnits PreferredRulerUnits() {
  std::int32_t ruler = kPreferredPoints;
  if (sAIPreference == nullptr) return kPointRuler;
  if (sAIPreference->GetIntegerPreference(nullptr, "rulerType", &ruler) != kNoErr) return kPointRuler;
  const auto index = static_cast<std::size_t>(ruler);
  return ruler >= 0 && index < std::size(kPreferred) ? kPreferred[index] : kPointRuler;
}

}  // namespace

std::int16_t GetRulerUnits() {
  std::int16_t ruler = kPointRuler;
  if (sAIDocument != nullptr && sAIDocument->GetDocumentRulerUnits(&ruler) == kNoErr) return ruler;
  return PreferredRulerUnits();
}

int RulerDecimals(std::int16_t rulerUnit) {
  return rulerUnit == kInchRuler || rulerUnit == kCentimeterRuler ? 4 : 3;
}

AIErr RulerToADMUnits(std::int16_t rulerUnit, ADMUnits* unit) {
  const auto index = static_cast<std::uint16_t>(rulerUnit);
  if (index >= std::size(kUnitOfRuler)) return kBadParameterErr;
  *unit = kUnitOfRuler[index];
  return kNoErr;
}

}  // namespace qRVADM
