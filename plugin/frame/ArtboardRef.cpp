#include "ArtboardRef.h"

#include "AIError.h"
#include "Exceptions.h"
#include "IAIArtboards.h"

using Vandrell::AIPluginWrappers::Exceptions::ParameterError;

namespace {

bool IsArtboard(const ai::ArtboardList& artboards, std::uint32_t index) {
  return static_cast<std::int64_t>(index) < artboards.GetCount();
}

}  // namespace

void ArtboardRef::SetIndex(std::uint32_t artboard) {
  index = artboard;
  try {
    if (IsArtboard(ai::ArtboardList(), index)) return;
  } catch (const ai::Error&) {
    throw ParameterError();
  }
  throw ParameterError();
}

void ArtboardRef::GetRect(AIRealRect* rect) const {
  try {
    const ai::ArtboardList artboards;
    if (!IsArtboard(artboards, index)) throw ParameterError();
    const auto number = static_cast<std::int32_t>(index);
    if (artboards.GetArtboardProperties(number).GetPosition(*rect) != kNoErr) throw ParameterError();
  } catch (const ai::Error&) {
    throw ParameterError();
  }
}
