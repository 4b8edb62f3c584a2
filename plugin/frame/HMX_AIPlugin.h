// The one object that lives between the host's messages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "AITypes.h"
#include "ResourceLocation.h"

namespace ai {
class FilePath;
}
namespace qRVADM {
class RVADM_NonModalDialog;
}
namespace Vandrell::AIPluginWrappers {
class Annotator;
}
class HMX_AIMenu;
class HMX_AIMenuHandler;
class HMX_AINotifier;
class HMX_AINotifierHandler;
class HMX_AISuiteManager;
class HMX_AITimerHandler;
class HMX_AITool;
class HMX_AIToolHandler;

// Life: construction at the startup message, OnAppStartup when the application runs, EndApplication when
// it is about to end, the shutdown message to Dispatch, destruction. All on the host's main thread; a
// message may come in while another is being handled.
class HMX_AIPlugin {
 public:
  using Annotator = Vandrell::AIPluginWrappers::Annotator;
  using Dialog = qRVADM::RVADM_NonModalDialog;
  using StartupAction = void (*)(void* argument);

  // `message` is the startup message. Failure is told by startupError; the object is then fit for
  // destruction only. No suite is held after construction.
  explicit HMX_AIPlugin(const SPMessageData& message);
  HMX_AIPlugin(const HMX_AIPlugin&) = delete;
  HMX_AIPlugin& operator=(const HMX_AIPlugin&) = delete;
  virtual ~HMX_AIPlugin();

  virtual AIErr OnAppStartup();   // the application runs; the result is dropped
  virtual AIErr OnAppShutdown();  // it is about to end, everything still stands; the result is dropped
  virtual void OnSaveUserData();  // lets every dialog store what the user changed

  // The host's folder for plug-ins, and the one for a user's own. As text: NUL-terminated UTF-8, codes
  // as CopyFullPath.
  virtual AIErr GetPluginsFolderPath(char* path, std::size_t size);
  virtual AIErr GetPluginsFolder(ai::FilePath& folder);
  virtual AIErr GetFolder24Path(char* path, std::size_t size);
  virtual AIErr GetFolder24(ai::FilePath& folder);

  // Offers a message to menus, notifiers, timers and tools until one answers other than 0, and to the
  // annotators in any case. 0 for a message that is nobody's.
  AIErr Dispatch(const char* caller, const char* selector, const void* message);

  // The tables. What is added is owned from then on, what is removed is not destroyed; the codes are
  // those of the handlers.
  AIErr AddMenu(HMX_AIMenu* menu);
  AIErr RemoveMenu(HMX_AIMenu* menu);
  AIErr AddNotifier(HMX_AINotifier* notifier);
  AIErr RemoveNotifier(HMX_AINotifier* notifier);
  AIErr AddTool(HMX_AITool* tool);
  AIErr RemoveTool(HMX_AITool* tool);
  void AddDialog(Dialog* dialog);
  // Not owned; one that is entered already is not entered again.
  void AddAnnotator(Annotator* annotator);
  void RemoveAnnotator(Annotator* annotator);

  // Has `action` called once the application has come up wholly. `argument` must last until then.
  void AddStartupAction(StartupAction action, void* argument);
  void RunStartupActions();  // all of them in order, those that are added meanwhile too; then forgets them

  // The pointer over the drawing: a picture of the plug-in's, by resource id. The host's code.
  AIErr SetCursor(std::int32_t cursorID);

  // What must be gone before the host takes itself down: annotators, dialogs, cursors.
  void EndApplication();

  SPErr RequestSuite(const char* name);
  SPErr RequestSuite(const char* name, std::int32_t version);

  SPPluginRef GetPluginRef() const { return pluginRef; }
  const char* GetResourcePath() const { return resourcePath; }  // UTF-8, without a "/" at its end
  AIErr GetStartupError() const { return startupError; }

  // Makes a wrapper and enters it in its table, which owns it.
  template <typename Notifier, typename... Arguments>
  Notifier* MakeNotifier(Arguments&&... arguments) {
    auto notifier = std::make_unique<Notifier>(std::forward<Arguments>(arguments)...);
    AddNotifier(notifier.get());
    return notifier.release();
  }
  template <typename Menu, typename... Arguments>
  Menu* MakeMenu(Arguments&&... arguments) {
    auto menu = std::make_unique<Menu>(std::forward<Arguments>(arguments)...);
    AddMenu(menu.get());
    return menu.release();
  }

 protected:
  HMX_AISuiteManager* suiteManager;  // the one of the process
  SPPluginRef pluginRef;             // goes with every registration
  AIErr startupError = kNoErr;
  char resourcePath[kResourcePathSize] = "";

 private:
  AIErr FetchPluginAccess(const SPBasicSuite& basic);
  void MakeHandlers();
  void DestroyHandlers();
  void DestroyDialogs();
  AIErr OfferToHandlers(const char* caller, const char* selector, const void* message);
  Annotator* FindAnnotator(AIAnnotatorHandle handle) const;

  std::vector<std::pair<StartupAction, void*>> startupActions;
  std::unique_ptr<HMX_AIMenuHandler> menuHandler;
  std::unique_ptr<HMX_AINotifierHandler> notifierHandler;
  std::unique_ptr<HMX_AITimerHandler> timerHandler;
  std::unique_ptr<HMX_AIToolHandler> toolHandler;
  HMX_AINotifier* appStartupNotifier = nullptr;  // these three belong to notifierHandler
  HMX_AINotifier* appShutdownNotifier = nullptr;
  HMX_AINotifier* saveUserDataNotifier = nullptr;
  AIResourceManagerHandle cursorResourceManager = nullptr;  // null until a cursor is first set
  SPAccessRef pluginAccess = nullptr;
  std::vector<std::unique_ptr<Dialog>> dialogs;
  std::vector<Annotator*> annotators;
};
