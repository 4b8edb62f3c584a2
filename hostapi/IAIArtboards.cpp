#include "IAIArtboards.h"

#include "AIError.h"

namespace ai {
namespace {

const AIArtboardSuite& Suite() {
  if (sAIArtboard == nullptr) throw Error(kSPSuiteNotFoundError);
  return *sAIArtboard;
}

}  // namespace

ArtboardProperties::ArtboardProperties(AIArtboardListHandle list, std::int32_t index) {
  ThrowOnError(Suite().GetArtboardProperties(list, index, &properties_));
}

ArtboardProperties::~ArtboardProperties() {
  if (properties_ != nullptr && sAIArtboard != nullptr) sAIArtboard->DisposeArtboardProperties(properties_);
}

AIErr ArtboardProperties::GetPosition(AIRealRect& position) const {
  return Suite().GetPosition(properties_, &position);
}

UnicodeString ArtboardProperties::GetName() const {
  UnicodeString name;
  ThrowOnError(Suite().GetName(properties_, name.handle()));
  return name;
}

ArtboardList::ArtboardList() {
  ThrowOnError(Suite().GetArtboardList(&list_));
}

ArtboardList::~ArtboardList() {
  if (list_ != nullptr && sAIArtboard != nullptr) sAIArtboard->DisposeArtboardList(list_);
}

std::int32_t ArtboardList::GetCount() const {
  std::int32_t count = 0;
  ThrowOnError(Suite().GetCount(list_, &count));
  return count;
}

std::int32_t ArtboardList::GetActive() const {
  std::int32_t index = 0;
  ThrowOnError(Suite().GetActive(list_, &index));
  return index;
}

}  // namespace ai
