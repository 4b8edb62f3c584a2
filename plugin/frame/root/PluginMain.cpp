// The one entry of the plug-in.
#include <memory>
#include <new>

#include "AIError.h"
#include "CutPlugin.h"
#include "HostText.h"
#include "Platform.h"
#include "SPBasic.h"

namespace {

constexpr SPErr kKeptOut = -1;

HMX_AIPlugin* sPluginObject = nullptr;  // owned; null before a good startup and after the shutdown

bool IsInterfaceMessage(const char* caller, const char* selector, const char* wanted) {
  return IsEqual(caller, kSPInterfaceCaller) && IsEqual(selector, wanted);
}

// Runs `task`; an exception must not reach the host and becomes a code.
template <typename Task>
SPErr ResultOf(Task task) {
  try {
    return task();
  } catch (const ai::Error& error) {
    return error.code;
  } catch (const std::bad_alloc&) {
    return kSPOutOfMemoryError;
  } catch (...) {
    return kSPExceptionError;
  }
}

// Makes the plug-in. The Option key held down while the host comes up keeps it out.
SPErr Start(const SPMessageData& message) {
  if ((GetCurrentKeyModifiers() & kOptionKeyModifier) != 0) return kKeptOut;
  auto plugin = std::make_unique<Vandrell::Corvane::CutPlugin>(message);
  const SPErr error = plugin->GetStartupError();
  if (error == kSPNoError) sPluginObject = plugin.release();
  return error;
}

}  // namespace

// The head's `basic` is stored again after each step that can clear sSPBasic.
extern "C" [[gnu::visibility("default")]] SPErr PluginMain(const char* caller, const char* selector,
                                                           void* message) {
  const auto& head = *static_cast<const SPMessageData*>(message);
  SPErr result = kSPNoError;
  sSPBasic = head.basic;
  if (sPluginObject == nullptr && head.SPCheck == kSPValidSPMessageData &&
      IsInterfaceMessage(caller, selector, kSPInterfaceStartupSelector)) {
    result = ResultOf([&] { return Start(head); });
    sSPBasic = head.basic;
  }
  if (sPluginObject == nullptr) return result;

  result = ResultOf([&] { return sPluginObject->Dispatch(caller, selector, message); });
  sSPBasic = head.basic;
  if (sPluginObject != nullptr && IsInterfaceMessage(caller, selector, kSPInterfaceShutdownSelector)) {
    delete sPluginObject;
    sPluginObject = nullptr;
  }
  return result;
}
