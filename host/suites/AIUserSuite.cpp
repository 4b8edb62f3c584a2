#include "AIUser.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr show(Host& host, AlertKind kind, AIUnicodeStringHandle text) {
  const HostString* string = findString(host, text);
  if (string == nullptr) return kBadParameterErr;
  host.alert(kind, string->text());
  return kNoErr;
}

AIErr messageAlert(Host& host, AIUnicodeStringHandle text) {
  return show(host, AlertKind::Message, text);
}

AIErr errorAlert(Host& host, AIUnicodeStringHandle text) {
  return show(host, AlertKind::Error, text);
}

AIErr createCursorResourceMgr(Host& host, SPPluginRef plugin, AIResourceManagerHandle* manager) {
  if (host.plugins().find(plugin) == nullptr || manager == nullptr) return kBadParameterErr;
  *manager = host.objects().cursorResources.make({plugin});
  return *manager == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposeCursorResourceMgr(Host& host, AIResourceManagerHandle manager) {
  return host.objects().cursorResources.dispose(manager) ? kNoErr : kBadParameterErr;
}

AIErr setCursor(Host& host, std::int32_t cursorID, AIResourceManagerHandle manager) {
  const CursorResources* resources = host.objects().cursorResources.find(manager);
  if (resources == nullptr) return kBadParameterErr;
  if (host.onCursor) host.onCursor(*host.plugins().find(resources->plugin), cursorID);
  return kNoErr;
}

}  // namespace

SuiteOffer userSuite() {
  SuiteEntries entries(kAIUserSuite);
  static const AIUserSuite table{
      entries.add<messageAlert>("MessageAlert"),
      entries.add<errorAlert>("ErrorAlert"),
      entries.add<createCursorResourceMgr>("CreateCursorResourceMgr"),
      entries.add<disposeCursorResourceMgr>("DisposeCursorResourceMgr"),
      entries.add<setCursor>("SetCursor"),
  };
  return entries.offer(kAIUserSuiteVersion, &table);
}

}  // namespace host
