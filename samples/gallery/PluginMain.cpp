// The one entry of the plug-in.
#include <memory>
#include <string>

#include "AIError.h"
#include "GalleryPlugin.h"
#include "SPBasic.h"

namespace {

std::unique_ptr<gallery::GalleryPlugin> thePlugin;  // between startup and shutdown

SPErr Handle(const std::string& caller, const std::string& selector, const void* message) {
  const auto& head = *static_cast<const SPMessageData*>(message);
  const bool isLifeMessage = caller == kSPInterfaceCaller;
  if (isLifeMessage && selector == kSPInterfaceStartupSelector) {
    auto plugin = std::make_unique<gallery::GalleryPlugin>(head.self);
    const SPErr error = plugin->Start(head.basic);
    if (error == kSPNoError) thePlugin = std::move(plugin);
    return error;
  }
  if (thePlugin == nullptr) return kSPNoError;
  if (isLifeMessage && selector == kSPInterfaceShutdownSelector) {
    thePlugin.reset();
    return kSPNoError;
  }
  return thePlugin->Handle(caller, selector, message);
}

}  // namespace

// An exception must not reach the host and becomes a code.
extern "C" [[gnu::visibility("default")]] SPErr PluginMain(const char* caller, const char* selector,
                                                           void* message) {
  try {
    return Handle(caller, selector, message);
  } catch (const ai::Error& error) {
    return error.code;
  } catch (...) {
    return kSPExceptionError;
  }
}
