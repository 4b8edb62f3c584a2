#include "MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>
#include <utility>

#include "AlertBox.h"
#include "DrawingTabs.h"
#include "DrawingView.h"
#include "GuardedApplication.h"
#include "Host.h"
#include "HostWindow.h"
#include "ProgramName.h"
#include "RecoverLost.h"
#include "Session.h"
#include "WindowPlace.h"

namespace host {
namespace {

constexpr char kRecoveryFolder[] = "/recovery";

std::vector<std::string> localFiles(const QMimeData& data) {
  std::vector<std::string> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(url.toLocalFile().toStdString());
  }
  return files;
}

// Empty if the application has no folder for it.
std::string recoveryRoot(const Host& host) {
  const std::string& state = host.folders().state;
  return state.empty() ? state : state + kRecoveryFolder;
}

}  // namespace

MainWindow::MainWindow(Host& host, Session& session, FileChooser chooser, const std::string& language)
    : host_(host),
      session_(session),
      workspace_(host, session),
      settings_(host.preferences()),
      menus_(*menuBar(), host,
             {[this](AIMenuItemHandle item) { session_.updateMenuItem(item); },
              [this](AIMenuItemHandle item) { chooseMenuItem(item); }}),
      tools_(*this, host, session,
             {[this](const OpenDocument& open) { return tabs_->viewOf(open); },
              [this](bool drawingHasChanged) { toolDone(drawingHasChanged); },
              [this](const std::string& title, SPErr code) { tellFailure(title, code); }}),
      panels_(*this, host, [this] { refreshLater(); }),
      panelAction_(host.contexts()),
      pickers_(host, *this),
      tabs_(makeTabs()),
      parts_(makeParts()),
      autosave_(workspace_, recoveryRoot(host), settings_.autosaveSeconds()),
      files_(parts_, autosave_, std::move(chooser)),
      edits_(parts_),
      views_(parts_),
      looks_(parts_, language),
      status_(*statusBar(), [this] { return parts_.view(); }),
      hostPanels_(*this, host, session,
                  {[this] { refreshLater(); },
                   [this](const AIRealRect& part) {
                     if (DrawingView* view = parts_.view()) view->fit(part);
                   }}) {
  setHostWindow(this);
  setAcceptDrops(true);
  setContextMenuPolicy(Qt::PreventContextMenu);
  makeActions();
  followHost();
  takePlace(*this, settings_);
  refresh();
}

MainWindow::~MainWindow() {
  host_.showAlert = nullptr;
  host_.onViewChange = nullptr;
  host_.onPluginFailure = nullptr;
  host_.contexts().onEnd = nullptr;
  delete tabs_;  // the views go before the drawings they show
}

DrawingTabs* MainWindow::makeTabs() {
  const QString keys = QKeySequence("Ctrl+O").toString(QKeySequence::NativeText);
  auto* tabs = new DrawingTabs("Open a drawing with " + keys + ", or drop one here.", tools_,
                               {[this](OpenDrawing& drawing) { turnedTo(drawing); },
                                [this](OpenDrawing& drawing) {
                                  if (session_.takesCommands()) files_.close(drawing);
                                },
                                [this](OpenDrawing&) { refresh(); }});
  setCentralWidget(tabs);
  return tabs;
}

WindowParts MainWindow::makeParts() {
  return {*this,
          host_,
          session_,
          workspace_,
          *tabs_,
          menus_,
          settings_,
          [this] { refresh(); },
          [this] {
            if (onChoice) onChoice();
          },
          [this](const std::vector<std::string>& sentences) { tell(sentences); }};
}

void MainWindow::makeActions() {
  auto* quit = new QAction("&Quit", this);
  quit->setShortcut(QKeySequence("Ctrl+Q"));
  addAction(quit);
  connect(quit, &QAction::triggered, this, &QWidget::close);
  menus_.setOwnItems("File Quit", {quit});
  menus_.setOwnItems("Help Menu", {parts_.command("&About corvane-host", {}, [this] { about(); })});
}

void MainWindow::followHost() {
  host_.showAlert = [this](const Alert& alert) {
    refresh();  // what the alert speaks of is to be seen
    showAlertBox(alert, this);
  };
  host_.onViewChange = [this](const OpenDocument&) { tabs_->refresh(); };
  host_.onPluginFailure = GuardedApplication::report;
  host_.contexts().onEnd = [this] { refreshLater(); };
  refreshTimer_.setSingleShot(true);
  connect(&refreshTimer_, &QTimer::timeout, this, [this] {
    session_.tellChanges();
    refreshDrawings();
  });
}

// --- what the user does ---

std::vector<std::string> MainWindow::openFiles(const std::vector<std::string>& files) {
  return files_.openFiles(files);
}

void MainWindow::offerLostDrawings() {
  const std::string root = recoveryRoot(host_);
  if (!root.empty()) offerLost(parts_, autosave_, root);
}

void MainWindow::about() {
  QMessageBox::about(this, kProgramName,
                     "corvane-host " CORVANE_VERSION
                     "\n\nOpens SVG drawings, runs plug-ins on them and saves them with nothing lost.");
}

void MainWindow::chooseMenuItem(AIMenuItemHandle item) {
  const std::string text = host_.menus().items().find(item)->text;
  const std::optional<SPErr> code = session_.chooseMenuItem(item);
  refresh();
  if (onCommandDone) onCommandDone();
  if (code.value_or(kSPNoError) != kSPNoError) tellFailure(text, *code);
}

void MainWindow::toolDone(bool drawingHasChanged) {
  if (drawingHasChanged) refresh();
  if (onCommandDone) onCommandDone();
}

void MainWindow::tellFailure(const std::string& command, SPErr code) {
  tell({"The plug-in failed at \"" + command + "\" with code " + std::to_string(code) + "."});
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!session_.takesCommands() || !files_.closeAll()) return;
  hostPanels_.rememberForGood();
  panels_.rememberForGood();
  rememberPlace(*this, settings_);
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (session_.takesCommands() && !localFiles(*event->mimeData()).empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  if (!session_.takesCommands()) return;
  event->acceptProposedAction();
  files_.openAndTell(localFiles(*event->mimeData()));
}

void MainWindow::tell(const std::vector<std::string>& sentences) {
  std::string text;
  for (std::string sentence : sentences) {
    if (sentence[0] >= 'a' && sentence[0] <= 'z') sentence[0] = static_cast<char>(sentence[0] - 'a' + 'A');
    text += (text.empty() ? "" : "\n\n") + sentence;
  }
  if (text.empty()) return;
  showAlertBox({AlertKind::Error, text}, this);
}

// --- what the window shows ---

void MainWindow::turnedTo(OpenDrawing& drawing) {
  workspace_.makeCurrent(drawing);
  refresh();
}

void MainWindow::refresh() {
  session_.tellChanges();
  tools_.refresh();
  panels_.refresh();
  refreshDrawings();
}

void MainWindow::refreshDrawings() {
  tabs_->refresh();
  tools_.showInfo();
  setFocusProxy(tabs_->drawings() > 0 ? &tabs_->viewAt(tabs_->current()) : nullptr);
  refreshTitle();
  files_.refresh();
  edits_.refresh();
  views_.refresh();
  looks_.refresh();
  status_.refresh();
  hostPanels_.refresh();
  listDocuments();
  listPanels();
  menus_.refresh();
}

void MainWindow::refreshLater() {
  refreshTimer_.start(0);
}

void MainWindow::refreshTitle() {
  const OpenDrawing* drawing = workspace_.current();
  const bool isOpen = drawing != nullptr;
  setWindowTitle(isOpen ? titleOf(*drawing).replace("[*]", "[*][*]") + "[*] \u2014 " + kProgramName
                        : QString(kProgramName));
  setWindowModified(isOpen && drawing->isModified());
}

void MainWindow::listDocuments() {
  for (QAction* action : documents_) action->deleteLater();  // one of them may be at work right now
  documents_.clear();
  for (int i = 0; i < tabs_->drawings(); ++i) {
    const QString mnemonic = i < 9 ? "&" + QString::number(i + 1) + " " : QString();
    auto* action = new QAction(mnemonic + titleOf(tabs_->viewAt(i).drawing()).replace('&', "&&"), this);
    action->setCheckable(true);
    action->setChecked(i == tabs_->current());
    connect(action, &QAction::triggered, this, [this, i] { tabs_->turnTo(i); });
    documents_ << action;
  }
  menus_.setOwnItems("Documents", documents_);
}

void MainWindow::listPanels() {
  for (QAction* action : panelItems_) action->deleteLater();
  panelItems_ = hostPanels_.makeActions() + panels_.makeActions();
  menus_.setOwnItems("Panels", panelItems_);
}

}  // namespace host
