#include "Session.h"

#include <QApplication>
#include <QThread>
#include <algorithm>
#include <string_view>
#include <utility>

#include "AIMenu.h"
#include "AINotifier.h"
#include "UndoStep.h"

namespace host {
namespace {

// Result codes are four characters where they can be read so.
std::string codeText(SPErr code) {
  const auto bits = static_cast<std::uint32_t>(code);
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    const auto byte = static_cast<char>((bits >> shift) & 0xFF);
    if (byte < ' ' || byte > '~') return std::to_string(code);
    text += byte;
  }
  return "'" + text + "'";
}

// A menu's text without the dots that promise a dialog.
std::string commandName(std::string text) {
  for (const std::string_view dots : {"...", "\u2026"}) {
    const std::size_t name = text.size() - std::min(dots.size(), text.size());
    if (name > 0 && text.compare(name, dots.size(), dots) == 0) text.resize(name);
  }
  return text;
}

// The first of which `isWanted` is true, if there is one.
template <typename Predicate>
void selectTool(ToolTable& tools, const Predicate& isWanted) {
  const auto found = std::find_if(tools.all().begin(), tools.all().end(), isWanted);
  if (found != tools.all().end()) tools.select(found->handle);
}

}  // namespace

std::string Session::loadPlugin(const std::filesystem::path& bundle) {
  auto loaded = PluginBundle::load(bundle);
  if (const std::string* reason = std::get_if<std::string>(&loaded)) return *reason;
  PluginBundle& library = std::get<PluginBundle>(loaded);
  const PluginRecord& record = host_.addPlugin(library.name(), library.folder().string());
  LoadedPlugin plugin{record.handle, std::move(library), nullptr};
  std::string reason = startPlugin(plugin);
  if (reason.empty()) plugins_.push_back(std::move(plugin));
  return reason;
}

std::string Session::startPlugin(LoadedPlugin& plugin) {
  SPMessageData message{};
  const SPErr code = sendTo(plugin, kSPInterfaceCaller, kSPInterfaceStartupSelector, message, {});
  if (code == kSPNoError) return {};
  return "the plug-in " + plugin.bundle.folder().string() + " did not start: it answered " + codeText(code);
}

void Session::start() {
  started_ = true;
  notify(kAIApplicationStartedNotifier);
  notify(kAIOwlAppInitDispatchedNotifier);
}

OpenDocument& Session::openDocument(std::shared_ptr<Document> document, std::string title, std::string file) {
  OpenDocument& open = host_.documents().open(std::move(document), std::move(title), std::move(file));
  notify(kAIDocumentOpenedNotifier, open.handle());
  notifyOfCurrentDocument();
  return open;
}

void Session::closeDocument(const Document& document) {
  const auto& all = host_.documents().all();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const auto& open) { return open->document.get() == &document; });
  if (found == all.end()) return;
  const AIDocumentHandle handle = (*found)->handle();
  host_.documents().close(document);
  notify(kAIDocumentClosedNotifier, handle);
  notifyOfCurrentDocument();
}

void Session::makeCurrent(const Document& document) {
  if (host_.currentDocument() == &document) return;
  host_.documents().setCurrent(document);
  notifyOfCurrentDocument();
}

bool Session::takesCommands() const {
  const bool hasDialog =
      QCoreApplication::instance() != nullptr && QApplication::activeModalWidget() != nullptr;
  return !hasDialog && !host_.alertIsUp();
}

std::optional<SPErr> Session::chooseMenuItem(AIMenuItemHandle handle) {
  const MenuItem* item = host_.menus().items().find(handle);
  if (item == nullptr || !item->enabledIn(host_.menuState()) || !takesCommands()) return std::nullopt;
  AIMenuMessage message{};
  message.menuItem = handle;
  const SPPluginRef plugin = item->plugin;
  const std::string step = commandName(item->text);
  updateMenuItem(handle);
  return send(plugin, kCallerAIMenu, kSelectorAIGoMenuItem, message.d, step);
}

std::optional<SPErr> Session::chooseMenuItem(const std::string& key) {
  for (const MenuItem& item : host_.menus().items()) {
    if (item.key == key) return chooseMenuItem(item.handle);
  }
  return std::nullopt;
}

void Session::updateMenuItem(AIMenuItemHandle handle) {
  const MenuItem* item = host_.menus().items().find(handle);
  if (item == nullptr || !item->wantsUpdate || !takesCommands()) return;
  AIMenuMessage message{};
  message.menuItem = handle;
  send(item->plugin, kCallerAIMenu, kSelectorAIUpdateMenuItem, message.d);
}

void Session::notifyOfCurrentDocument() {
  OpenDocument* const current = host_.documents().current();
  notify(kAIDocumentChangedNotifier, current == nullptr ? nullptr : current->handle());
}

void Session::edit(const std::string& stepName, const std::function<void(Document&)>& change) {
  Document* const document = host_.currentDocument();
  if (document == nullptr) return;
  {
    const UndoStep step(host_.documents(), stepName);
    change(*document);
  }
  tellChanges();
}

Session::Told Session::now() const {
  const Document* const document = host_.currentDocument();
  if (document == nullptr) return {};
  return {document->serial(), document->selectionRevision(), document->revision()};
}

void Session::tellChanges() {
  if (depth_ > 0) return;
  const Told before = std::exchange(told_, now());
  const bool isAnother = before.serial != told_.serial;
  const bool isAnotherSelection = isAnother || before.selection != told_.selection;
  if (isAnotherSelection) notify(kAIArtSelectionChangedNotifier);
  if (isAnotherSelection || before.revision != told_.revision) notify(kAIArtPropertiesChangedNotifier);
}

void Session::shutdown() {
  endLife();
  plugins_.clear();
}

void Session::endLife() {
  if (started_) {
    notify(kAISaveUserDataNotifier);
    notify(kAIApplicationShutdownNotifier);
    started_ = false;
  }
  for (LoadedPlugin& plugin : plugins_) {
    SPMessageData message{};
    sendTo(plugin, kSPInterfaceCaller, kSPInterfaceShutdownSelector, message, {});
  }
}

bool Session::isIdle() const {
  const bool hasPopup =
      QCoreApplication::instance() != nullptr && QApplication::activePopupWidget() != nullptr;
  const bool isWithinLoop = QThread::currentThread()->loopLevel() > 1;
  return takesCommands() && depth_ == 0 && host_.contexts().depth() == 0 && !hasPopup && !isWithinLoop;
}

std::vector<std::string> Session::restart() {
  ToolTable& tools = host_.tools();
  const std::string selected = tools.selected() == nullptr ? std::string() : tools.selected()->name;
  selectTool(tools, [](const ToolRecord& tool) { return tool.plugin == nullptr; });  // while plug-ins listen
  endLife();
  host_.forgetRegistrations();
  std::vector<std::string> complaints;
  std::vector<LoadedPlugin> ended = std::exchange(plugins_, {});
  for (LoadedPlugin& plugin : ended) {
    plugin.globals = nullptr;
    std::string reason = startPlugin(plugin);
    if (reason.empty()) {
      plugins_.push_back(std::move(plugin));
    } else {
      complaints.push_back(std::move(reason));
    }
  }
  start();
  tellOfDocuments();
  selectTool(tools, [&](const ToolRecord& tool) { return tool.name == selected; });
  return complaints;
}

void Session::tellOfDocuments() {
  if (host_.documents().all().empty()) return;
  for (const auto& open : host_.documents().all()) notify(kAIDocumentOpenedNotifier, open->handle());
  notifyOfCurrentDocument();
}

void Session::notify(const char* type, void* data) {
  // A notifier may register another while it runs, so the list is gone through by a copy of its handles.
  std::vector<AINotifierHandle> listening;
  for (const NotifierRecord& notifier : host_.notifiers()) {
    if (notifier.active && notifier.type == type) listening.push_back(notifier.handle);
  }
  for (const AINotifierHandle handle : listening) {
    const NotifierRecord* notifier = host_.notifiers().find(handle);
    if (notifier == nullptr || !notifier->active) continue;
    AINotifierMessage message{};
    message.notifier = handle;
    message.type = type;
    message.notifyData = data;
    send(notifier->plugin, kAINotifierCaller, type, message.d);
  }
}

SPErr Session::send(SPPluginRef plugin, const char* caller, const char* selector, SPMessageData& message,
                    const std::string& stepName) {
  for (LoadedPlugin& loaded : plugins_) {
    if (loaded.ref == plugin) return sendTo(loaded, caller, selector, message, stepName);
  }
  return kSPBadParameterError;
}

SPErr Session::sendTo(LoadedPlugin& plugin, const char* caller, const char* selector, SPMessageData& message,
                      const std::string& stepName) {
  message.SPCheck = kSPValidSPMessageData;
  message.self = plugin.ref;
  message.globals = plugin.globals;
  message.basic = host_.basic();
  const UndoStep step(host_.documents(), stepName.empty() ? "Change" : stepName);
  const std::size_t depth = host_.contexts().depth();
  ++depth_;
  SPErr code = kSPExceptionError;
  try {
    code = plugin.bundle.entry()(caller, selector, &message);
  } catch (...) {
    code = kSPExceptionError;
  }
  --depth_;
  host_.contexts().popTo(depth);
  plugin.globals = message.globals;
  return code;
}

}  // namespace host
