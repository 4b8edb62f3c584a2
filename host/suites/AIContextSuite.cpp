#include "AIContext.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIErr pushAppContext(Host& host, SPPluginRef plugin, AIAppContextHandle* context) {
  const PluginRecord* record = host.plugins().find(plugin);
  if (record == nullptr || context == nullptr) return kBadParameterErr;
  *context = host.contexts().push(record->name);
  return *context == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr popAppContext(Host& host, AIAppContextHandle context) {
  return host.contexts().pop(context) ? kNoErr : kBadParameterErr;
}

}  // namespace

SuiteOffer contextSuite() {
  SuiteEntries entries(kAIContextSuite);
  static const AIContextSuite table{
      entries.add<pushAppContext>("PushAppContext"),
      entries.add<popAppContext>("PopAppContext"),
  };
  return entries.offer(kAIContextSuiteVersion, &table);
}

}  // namespace host
