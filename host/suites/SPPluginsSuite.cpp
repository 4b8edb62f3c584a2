#include "SPPlugins.h"

#include "Entry.h"
#include "Suites.h"
#include "Utf8.h"

namespace host {
namespace {

SPErr setPluginName(Host& host, SPPluginRef plugin, const char* name) {
  PluginRecord* record = host.plugins().find(plugin);
  if (record == nullptr || name == nullptr) return kBadParameterErr;
  record->name = validUtf8(name);
  return kSPNoError;
}

SPErr getPluginFileSpecification(Host& host, SPPluginRef plugin, SPFileRef* file) {
  const PluginRecord* record = host.plugins().find(plugin);
  if (record == nullptr || file == nullptr) return kBadParameterErr;
  *file = record->file();
  return kSPNoError;
}

}  // namespace

SuiteOffer pluginsSuite() {
  SuiteEntries entries(kSPPluginsSuite);
  static const SPPluginsSuite table{
      entries.add<setPluginName>("SetPluginName"),
      entries.add<getPluginFileSpecification>("GetPluginFileSpecification"),
  };
  return entries.offer(kSPPluginsSuiteVersion, &table);
}

}  // namespace host
