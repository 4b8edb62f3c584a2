#include "SPAccess.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

SPErr getPluginAccess(Host& host, SPPluginRef plugin, SPAccessRef* access) {
  const PluginRecord* record = host.plugins().find(plugin);
  if (record == nullptr || access == nullptr) return kBadParameterErr;
  *access = record->access();
  return kSPNoError;
}

}  // namespace

SuiteOffer accessSuite() {
  SuiteEntries entries(kSPAccessSuite);
  static const SPAccessSuite table{entries.add<getPluginAccess>("GetPluginAccess")};
  return entries.offer(kSPAccessSuiteVersion, &table);
}

}  // namespace host
