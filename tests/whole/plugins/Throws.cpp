// Lets an exception out of its entry.
#include <stdexcept>

#include "SPTypes.h"

extern "C" __attribute__((visibility("default"))) SPErr PluginMain(const char*, const char*, void*) {
  throw std::runtime_error("out of the entry");
}
