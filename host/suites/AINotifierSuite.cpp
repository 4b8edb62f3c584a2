#include "AINotifier.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIErr addNotifier(Host& host, SPPluginRef plugin, const char* name, const char* type,
                  AINotifierHandle* notifier) {
  if (host.plugins().find(plugin) == nullptr || name == nullptr || type == nullptr || notifier == nullptr) {
    return kBadParameterErr;
  }
  NotifierRecord record;
  record.plugin = plugin;
  record.name = name;
  record.type = type;
  *notifier = host.notifiers().add(std::move(record)).handle;
  return kNoErr;
}

AIErr setNotifierActive(Host& host, AINotifierHandle notifier, AIBoolean active) {
  NotifierRecord* record = host.notifiers().find(notifier);
  if (record == nullptr) return kBadParameterErr;
  record->active = active != 0;
  return kNoErr;
}

}  // namespace

SuiteOffer notifierSuite() {
  SuiteEntries entries(kAINotifierSuite);
  static const AINotifierSuite table{
      entries.add<addNotifier>("AddNotifier"),
      entries.add<setNotifierActive>("SetNotifierActive"),
  };
  return entries.offer(kAINotifierSuiteVersion, &table);
}

}  // namespace host
