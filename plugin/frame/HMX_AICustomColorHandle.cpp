#include "HMX_AICustomColorHandle.h"

HMX_AICustomColorHandle::HMX_AICustomColorHandle(const AICustomColor* definition,
                                                 const ai::UnicodeString& name) {
  if (sAICustomColor->NewCustomColor(definition, name.handle(), &color) != kNoErr) color = nullptr;
}
