// The application as plug-ins see it: what the function tables of the suites work on.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "AIAnnotator.h"
#include "AIColor.h"
#include "Contexts.h"
#include "Documents.h"
#include "Folders.h"
#include "MenuTable.h"
#include "PanelTable.h"
#include "Preferences.h"
#include "Refusal.h"
#include "Registrations.h"
#include "ResourceTable.h"
#include "ToolTable.h"

struct SPBasicSuite;

namespace host {

struct HostObjects;
struct SuiteOffer;
class HitTests;

enum class AlertKind { Message, Error };

struct Alert {
  AlertKind kind;
  std::string text;  // UTF-8
};

// One at a time in a process: it is the one the tables call from construction to destruction. Without
// one every entry fails. All on one thread.
class Host {
 public:
  explicit Host(Preferences preferences = {}, Folders folders = {});
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  static Host* current() { return current_; }

  // For the head of every message; the way to all suites.
  const SPBasicSuite* basic() const;

  Documents& documents() { return documents_; }
  Document* currentDocument() {  // null if none is open
    OpenDocument* current = documents_.current();
    return current == nullptr ? nullptr : current->document.get();
  }

  // What plug-ins registered, in order of registration. The host's user adds plug-ins and tools of its own.
  PluginRecord& addPlugin(std::string name, std::string bundle);  // `bundle`: absolute path of its folder
  Registry<PluginRecord>& plugins() { return plugins_; }
  Registry<NotifierRecord>& notifiers() { return notifiers_; }
  Registry<AnnotatorRecord>& annotators() { return annotators_; }
  MenuTable& menus() { return menus_; }
  ToolTable& tools() { return tools_; }
  PanelTable& panels() { return panels_; }
  Contexts& contexts() { return contexts_; }

  // Takes out whatever plug-ins registered, and ends their contexts and panels. They themselves stay in the
  // list. To be called when they have heard the end.
  void forgetRegistrations();

  // The pictures of a plug-in's bundle, read when they are first asked for; none for a stranger.
  const ResourceTable& pictures(SPPluginRef plugin);

  // Bits of the application's state for MenuItem::enabledIn.
  std::int32_t menuState() { return currentDocument() != nullptr ? kIfOpenDocument : 0; }

  Preferences& preferences() { return preferences_; }
  const Folders& folders() const { return folders_; }

  // Shows an alert and returns when it was answered; all that came up are kept in `alerts` too.
  std::function<void(const Alert&)> showAlert;
  const std::vector<Alert>& alerts() const { return alerts_; }
  void alert(AlertKind kind, std::string text);
  bool alertIsUp() const { return alertsUp_ > 0; }  // shown and not answered yet

  // For a plug-in's exception that nobody awaits, within its handler: passes one sentence on it to
  // `onPluginFailure` or, if that is unset, shows it as an alert.
  void pluginFailed();
  std::function<void(const std::string& sentence)> onPluginFailure;

  // Called after a plug-in changed the view of a document.
  std::function<void(const OpenDocument&)> onViewChange;
  // Called when an annotator wants a part of a view painted anew: in pixels, right and bottom beyond left
  // and top. Not a time to paint.
  std::function<void(const OpenDocument&, const AIRect& pixels)> onInvalidate;
  // Called when a plug-in asks for the pointer over the drawing, whether it has that one already or not: a
  // picture by resource id in the plug-in's bundle.
  std::function<void(const PluginRecord&, std::int32_t cursorId)> onCursor;

  // Ask the user for a colour or a paint, and return when the answer is there: false if it was refused, and
  // the argument then stays as it was. Unset: all are refused. The colours that are handed in can be shown,
  // and those of a paint belong to the current document, as `first`, which may be null, does.
  std::function<bool(const std::string& title, AIRGBColor& color)> pickRGBColor;  // empty: no title given
  std::function<bool(AISwatchRef first, AIColor& paint)> pickPaint;
  // Pixels of the screen in a unit of the interface; unset: 1.
  std::function<double()> uiScaleFactor;

  bool interactionAllowed = true;    // false: plug-ins are to show nothing
  bool endingWithoutSaving = false;  // an emergency exit is under way

  Refusal& refusal() { return refusal_; }

  // How many acquisitions of a suite are not released yet; of all suites together.
  std::int32_t holds(const std::string& suite) const;
  std::int32_t holds() const;

  // For the suites.
  HostObjects& objects() { return *objects_; }
  HitTests& hitTests() { return *hitTests_; }
  std::int32_t& holdCount(const SuiteOffer& offer);

 private:
  static Host* current_;

  Documents documents_;
  Registry<PluginRecord> plugins_;
  Registry<NotifierRecord> notifiers_;
  Registry<AnnotatorRecord> annotators_;
  std::map<SPPluginRef, ResourceTable> pictures_;
  MenuTable menus_;
  ToolTable tools_;
  PanelTable panels_;
  Contexts contexts_{documents_};
  Preferences preferences_;
  Folders folders_;
  std::vector<Alert> alerts_;
  int alertsUp_ = 0;
  Refusal refusal_;
  std::vector<std::int32_t> holdCounts_;  // in the order of the catalogue
  std::unique_ptr<HostObjects> objects_;
  std::unique_ptr<HitTests> hitTests_;
};

}  // namespace host
