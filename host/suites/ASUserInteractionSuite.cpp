#include "ASUserInteraction.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIBoolean interactWithUser(Host& host) {
  return host.interactionAllowed ? 1 : 0;
}

}  // namespace

SuiteOffer userInteractionSuite() {
  SuiteEntries entries(kASUserInteractionSuite);
  static const ASUserInteractionSuite table{entries.addUncounted<interactWithUser>("InteractWithUser")};
  return entries.offer(kASUserInteractionSuiteVersion, &table);
}

}  // namespace host
