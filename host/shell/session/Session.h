// The life of the application with its plug-ins, in messages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Host.h"
#include "PluginBundle.h"

namespace host {

// Sends every message of a life in its order: "Startup" as a plug-in is loaded, the notifiers of a started
// application, those of documents as they come and go, those of the end, and "Shutdown". Whatever one
// message changes in the documents is one undo step.
class Session {
 public:
  explicit Session(Host& host) : host_(host) {}
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session() { shutdown(); }

  // Loads a bundle and starts the plug-in in it. Empty, or one sentence on why the plug-in stays out; the
  // application goes on without it.
  std::string loadPlugin(const std::filesystem::path& bundle);
  // Once, behind the last loadPlugin.
  void start();

  OpenDocument& openDocument(std::shared_ptr<Document> document, std::string title, std::string file);
  void closeDocument(const Document& document);
  void makeCurrent(const Document& document);  // must be open

  // False while a dialog or an alert waits for its answer: until then no command reaches a plug-in. Panels
  // do not wait.
  bool takesCommands() const;
  // Chooses an item as a user would. Nullopt if there is no such item, it is disabled, or no command may
  // reach a plug-in now; else the plug-in's result code.
  std::optional<SPErr> chooseMenuItem(AIMenuItemHandle handle);
  std::optional<SPErr> chooseMenuItem(const std::string& key);  // the first item of this key
  // To be called before an item is shown: its plug-in may check it or not.
  void updateMenuItem(AIMenuItemHandle handle);

  // What the application itself changes in the current document for its user: one step of that name, or no
  // step if nothing but the selection changed. Plug-ins are told.
  void edit(const std::string& stepName, const std::function<void(Document&)>& change);
  // Tells plug-ins if the selection, or the art and what it looks like, are others than when this was last
  // called, in whichever document is current. To be called after every action of the user that may have
  // changed something, undo and redo among them; within messages it does nothing.
  void tellChanges();

  // Tells every plug-in; safe to call twice.
  void shutdown();

  // False also while a plug-in is at work: within a message, a context or an event loop of its own.
  bool isIdle() const;
  // Ends the plug-ins and starts them again, so that they read anew what they read at the start, such as
  // texts. They are told of the open documents, and the selected tool is selected again if it is there again.
  // To be called when the session is idle. A sentence for each plug-in that did not start again and stays
  // out.
  std::vector<std::string> restart();

  // One message to one plug-in, as a step of its own if `stepName` is not empty. An exception that comes
  // out of it counts as kSPExceptionError; contexts that the plug-in has left behind are ended.
  SPErr send(SPPluginRef plugin, const char* caller, const char* selector, SPMessageData& message,
             const std::string& stepName = {});
  void notify(const char* type, void* data = nullptr);

 private:
  void notifyOfCurrentDocument();

  // What a document was when plug-ins were last told of it.
  struct Told {
    std::uint32_t serial = 0;  // 0: no document
    std::uint64_t selection = 0;
    std::uint64_t revision = 0;
  };
  Told now() const;

  struct LoadedPlugin {
    SPPluginRef ref;
    PluginBundle bundle;
    void* globals = nullptr;
  };

  std::string startPlugin(LoadedPlugin& plugin);  // empty, or why it stays out
  void endLife();                                 // the last messages, to all
  void tellOfDocuments();

  SPErr sendTo(LoadedPlugin& plugin, const char* caller, const char* selector, SPMessageData& message,
               const std::string& stepName);

  Host& host_;
  std::vector<LoadedPlugin> plugins_;
  bool started_ = false;
  int depth_ = 0;  // of messages under way
  Told told_;
};

}  // namespace host
