#include "AppContext.h"

#include "AIContext.h"
#include "ToolkitPlugin.h"

namespace qRVADM {

AppContext::AppContext() {
  if (sAIContext != nullptr && sAIContext->PushAppContext(ToolkitPlugin(), &context) != kNoErr) {
    context = nullptr;
  }
}

AppContext::~AppContext() {
  if (context != nullptr && sAIContext != nullptr) sAIContext->PopAppContext(context);
}

}  // namespace qRVADM
