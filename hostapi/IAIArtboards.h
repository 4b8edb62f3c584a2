// The artboards of the current document as values.
#pragma once

#include "AIArtboard.h"
#include "IAIUnicodeString.h"

namespace ai {

// Owns a copy of one artboard's properties. Construction throws ai::Error when the suite refuses;
// destruction drops a refusal.
class ArtboardProperties {
 public:
  ArtboardProperties(AIArtboardListHandle list, std::int32_t index);
  ArtboardProperties(const ArtboardProperties&) = delete;
  ArtboardProperties& operator=(const ArtboardProperties&) = delete;
  ~ArtboardProperties();

  AIErr GetPosition(AIRealRect& position) const;  // the code of the suite
  UnicodeString GetName() const;                  // throws ai::Error

 private:
  AIArtboardPropertiesHandle properties_ = nullptr;
};

// Owns a copy of the document's list of artboards as it was at construction.
class ArtboardList {
 public:
  ArtboardList();  // throws ai::Error when there is no list to be had
  ArtboardList(const ArtboardList&) = delete;
  ArtboardList& operator=(const ArtboardList&) = delete;
  ~ArtboardList();

  std::int32_t GetCount() const;   // throws ai::Error
  std::int32_t GetActive() const;  // index; throws ai::Error
  ArtboardProperties GetArtboardProperties(std::int32_t index) const { return {list_, index}; }

 private:
  AIArtboardListHandle list_ = nullptr;
};

}  // namespace ai
