// A stretch of the plug-in's own doing, outside any message of the host's.
#pragma once

#include "AITypes.h"

namespace qRVADM {

// Pushes the host's application context for the toolkit's plug-in, and pops it however the stretch is left.
// A host that refuses the context is worked with all the same.
class AppContext {
 public:
  AppContext();
  AppContext(const AppContext&) = delete;
  AppContext& operator=(const AppContext&) = delete;
  ~AppContext();

 private:
  AIAppContextHandle context = nullptr;
};

}  // namespace qRVADM
