#include "AIRuntime.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIBoolean isEndingWithoutSaving(Host& host) {
  return host.endingWithoutSaving ? 1 : 0;
}

}  // namespace

SuiteOffer runtimeSuite() {
  SuiteEntries entries(kAIRuntimeSuite);
  static const AIRuntimeSuite table{
      entries.addUncounted<isEndingWithoutSaving>("IsEndingWithoutSaving"),
  };
  return entries.offer(kAIRuntimeSuiteVersion, &table);
}

}  // namespace host
