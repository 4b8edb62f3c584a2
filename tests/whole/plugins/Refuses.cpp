// Stays out: answers its startup with a code.
#include "SPTypes.h"

extern "C" __attribute__((visibility("default"))) SPErr PluginMain(const char*, const char*, void*) {
  return ErrorCode("NOPE");
}
