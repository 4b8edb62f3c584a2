#include "AIArtboard.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr getArtboardList(Host& host, AIArtboardListHandle* list) {
  if (list == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  *list = host.objects().artboardLists.make({document->state().artboards, document->state().activeArtboard});
  return *list == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposeArtboardList(Host& host, AIArtboardListHandle list) {
  return host.objects().artboardLists.dispose(list) ? kNoErr : kBadParameterErr;
}

AIErr getCount(Host& host, AIArtboardListHandle list, std::int32_t* count) {
  const ArtboardListCopy* copy = host.objects().artboardLists.find(list);
  if (copy == nullptr || count == nullptr) return kBadParameterErr;
  *count = static_cast<std::int32_t>(copy->artboards.size());
  return kNoErr;
}

AIErr getActive(Host& host, AIArtboardListHandle list, std::int32_t* index) {
  const ArtboardListCopy* copy = host.objects().artboardLists.find(list);
  if (copy == nullptr || index == nullptr) return kBadParameterErr;
  *index = static_cast<std::int32_t>(copy->active);
  return kNoErr;
}

AIErr getArtboardProperties(Host& host, AIArtboardListHandle list, std::int32_t index,
                            AIArtboardPropertiesHandle* properties) {
  const ArtboardListCopy* copy = host.objects().artboardLists.find(list);
  if (copy == nullptr || properties == nullptr) return kBadParameterErr;
  if (index < 0 || static_cast<std::size_t>(index) >= copy->artboards.size()) return kNoSuchItemErr;
  *properties = host.objects().artboardProperties.make(copy->artboards[static_cast<std::size_t>(index)]);
  return *properties == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposeArtboardProperties(Host& host, AIArtboardPropertiesHandle properties) {
  return host.objects().artboardProperties.dispose(properties) ? kNoErr : kBadParameterErr;
}

AIErr getPosition(Host& host, AIArtboardPropertiesHandle properties, AIRealRect* position) {
  const Artboard* artboard = host.objects().artboardProperties.find(properties);
  if (artboard == nullptr || position == nullptr) return kBadParameterErr;
  *position = artboard->position;
  return kNoErr;
}

AIErr getName(Host& host, AIArtboardPropertiesHandle properties, AIUnicodeStringHandle name) {
  const Artboard* artboard = host.objects().artboardProperties.find(properties);
  return artboard == nullptr ? kBadParameterErr : writeString(host, name, artboard->name);
}

}  // namespace

SuiteOffer artboardSuite() {
  SuiteEntries entries(kAIArtboardSuite);
  static const AIArtboardSuite table{
      entries.add<getArtboardList>("GetArtboardList"),
      entries.add<disposeArtboardList>("DisposeArtboardList"),
      entries.add<getCount>("GetCount"),
      entries.add<getActive>("GetActive"),
      entries.add<getArtboardProperties>("GetArtboardProperties"),
      entries.add<disposeArtboardProperties>("DisposeArtboardProperties"),
      entries.add<getPosition>("GetPosition"),
      entries.add<getName>("GetName"),
  };
  return entries.offer(kAIArtboardSuiteVersion, &table);
}

}  // namespace host
