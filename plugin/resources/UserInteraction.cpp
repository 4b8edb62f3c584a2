#include "UserInteraction.h"

#include "ASUserInteraction.h"
#include "SPBasic.h"

bool IsUserInteractionAllowed() {
  static const ASUserInteractionSuite* interaction = nullptr;  // kept for the life of the process
  if (interaction == nullptr) {
    const void* suite = nullptr;
    const SPErr error =
        sSPBasic->AcquireSuite(kASUserInteractionSuite, kASUserInteractionSuiteVersion, &suite);
    if (error != kSPNoError || suite == nullptr) return true;
    interaction = static_cast<const ASUserInteractionSuite*>(suite);
  }
  return interaction->InteractWithUser() != 0;
}
