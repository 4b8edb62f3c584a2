#include "MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "AINotifier.h"
#include "AlertBox.h"
#include "DrawingTabs.h"
#include "DrawingView.h"
#include "GuardedApplication.h"
#include "Host.h"
#include "HostWindow.h"
#include "ProgramName.h"
#include "Session.h"
#include "ThemeActions.h"
#include "UnsavedQuestion.h"

namespace host {
namespace {

constexpr int kWidth = 1100;
constexpr int kHeight = 720;
constexpr char kOpenKeys[] = "Ctrl+O";

std::vector<std::string> localFiles(const QMimeData& data) {
  std::vector<std::string> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(url.toLocalFile().toStdString());
  }
  return files;
}

// An action's text with the step that it undoes or redoes.
QString withStep(const char* text, const std::string& step) {
  return (QString(text) + " " + QString::fromStdString(step).replace('&', "&&")).trimmed();
}

}  // namespace

MainWindow::MainWindow(Host& host, Session& session, FileChooser chooser)
    : host_(host),
      session_(session),
      workspace_(host, session),
      chooser_(std::move(chooser)),
      menus_(*menuBar(), host,
             {[this](AIMenuItemHandle item) { session_.updateMenuItem(item); },
              [this](AIMenuItemHandle item) { chooseMenuItem(item); }}),
      tools_(*this, host, session,
             {[this](const OpenDocument& open) { return tabs_->viewOf(open); },
              [this](bool drawingHasChanged) { toolDone(drawingHasChanged); },
              [this](const std::string& title, SPErr code) { tellFailure(title, code); }}),
      panels_(*this, host, [this] { refreshLater(); }),
      pickers_(host, *this) {
  setHostWindow(this);
  setAcceptDrops(true);
  setContextMenuPolicy(Qt::PreventContextMenu);
  resize(kWidth, kHeight);
  buildTabs();
  buildActions();
  host_.showAlert = [this](const Alert& alert) {
    refresh();  // what the alert speaks of is to be seen
    showAlertBox(alert, this);
  };
  host_.onViewChange = [this](const OpenDocument&) { tabs_->refresh(); };
  host_.onPluginFailure = GuardedApplication::report;
  host_.contexts().onEnd = [this] { refreshLater(); };
  refreshTimer_.setSingleShot(true);
  connect(&refreshTimer_, &QTimer::timeout, this, [this] { refreshDrawings(); });
  refresh();
}

MainWindow::~MainWindow() {
  host_.showAlert = nullptr;
  host_.onViewChange = nullptr;
  host_.onPluginFailure = nullptr;
  host_.contexts().onEnd = nullptr;
  delete tabs_;  // the views go before the drawings they show
}

void MainWindow::buildTabs() {
  const QString keys = QKeySequence(kOpenKeys).toString(QKeySequence::NativeText);
  tabs_ = new DrawingTabs("Open a drawing with " + keys + ", or drop one here.", tools_,
                          {[this](OpenDrawing& drawing) { turnedTo(drawing); },
                           [this](OpenDrawing& drawing) {
                             if (session_.takesCommands()) closeDrawing(drawing);
                           }});
  setCentralWidget(tabs_);
}

QAction* MainWindow::addCommand(const char* text, const QKeySequence& keys, void (MainWindow::*command)()) {
  auto* action = new QAction(text, this);
  action->setShortcut(keys);
  addAction(action);  // its shortcut works whatever the menus hold
  connect(action, &QAction::triggered, this, [this, command] {
    if (session_.takesCommands()) (this->*command)();
  });
  return action;
}

void MainWindow::buildActions() {
  QAction* open = addCommand("&Open...", QKeySequence(kOpenKeys), &MainWindow::open);
  save_ = addCommand("&Save", QKeySequence("Ctrl+S"), &MainWindow::save);
  saveAs_ = addCommand("Save &As...", QKeySequence("Ctrl+Shift+S"), &MainWindow::saveAs);
  close_ = addCommand("&Close", QKeySequence("Ctrl+W"), &MainWindow::closeCurrent);
  undo_ = addCommand("&Undo", QKeySequence("Ctrl+Z"), &MainWindow::undo);
  redo_ = addCommand("&Redo", QKeySequence("Ctrl+Shift+Z"), &MainWindow::redo);
  QAction* about = addCommand("&About corvane-host", {}, &MainWindow::about);
  auto* quit = new QAction("&Quit", this);
  quit->setShortcut(QKeySequence("Ctrl+Q"));
  addAction(quit);
  connect(quit, &QAction::triggered, this, &QWidget::close);
  menus_.setOwnItems("File Open", {open});
  menus_.setOwnItems("File Save", {save_, saveAs_, close_});
  menus_.setOwnItems("File Quit", {quit});
  menus_.setOwnItems("Edit Undo", {undo_, redo_});
  menus_.setOwnItems("View Theme", makeThemeActions(*this, [this](Theme theme) { chooseTheme(theme); }));
  menus_.setOwnItems("Help Menu", {about});
}

// --- what the user does ---

void MainWindow::open() {
  openAndTell(chooser_.toOpen(this));
}

void MainWindow::save() {
  if (OpenDrawing* drawing = workspace_.current()) saveOrAskWhere(*drawing);
}

void MainWindow::saveAs() {
  OpenDrawing* drawing = workspace_.current();
  if (drawing == nullptr) return;
  const std::string& own = drawing->shown->file;
  const std::string file = chooser_.toSave(this, own.empty() ? drawing->shown->title : own);
  if (!file.empty()) saveTo(*drawing, file);
}

void MainWindow::closeCurrent() {
  if (OpenDrawing* drawing = workspace_.current()) closeDrawing(*drawing);
}

void MainWindow::undo() {
  if (OpenDrawing* drawing = workspace_.current()) drawing->document().undo();
  refresh();
}

void MainWindow::redo() {
  if (OpenDrawing* drawing = workspace_.current()) drawing->document().redo();
  refresh();
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

void MainWindow::chooseTheme(Theme theme) {
  setTheme(theme);
  session_.notify(kAIUIBrightnessChangedNotifier);
  tools_.refresh();
  panels_.refresh();
}

void MainWindow::tellFailure(const std::string& command, SPErr code) {
  tell({"The plug-in failed at \"" + command + "\" with code " + std::to_string(code) + "."});
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!session_.takesCommands()) return;
  for (const auto& drawing : workspace_.all()) {
    if (!mayLose(*drawing)) return;
  }
  while (OpenDrawing* drawing = workspace_.current()) dropDrawing(*drawing);
  panels_.rememberForGood();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (session_.takesCommands() && !localFiles(*event->mimeData()).empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  if (!session_.takesCommands()) return;
  event->acceptProposedAction();
  openAndTell(localFiles(*event->mimeData()));
}

// --- files ---

std::vector<std::string> MainWindow::openFiles(const std::vector<std::string>& files) {
  std::vector<std::string> complaints;
  for (const std::string& file : files) {
    auto opened = workspace_.open(file);
    if (std::string* reason = std::get_if<std::string>(&opened)) {
      complaints.push_back(std::move(*reason));
    } else {
      tabs_->turnTo(*std::get<OpenDrawing*>(opened));
    }
  }
  refresh();
  return complaints;
}

void MainWindow::openAndTell(const std::vector<std::string>& files) {
  tell(openFiles(files));
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

bool MainWindow::saveTo(OpenDrawing& drawing, const std::string& file) {
  const std::string reason = workspace_.save(drawing, file);
  if (!reason.empty()) tell({reason});
  refresh();
  return reason.empty();
}

bool MainWindow::saveOrAskWhere(OpenDrawing& drawing) {
  std::string file = drawing.shown->file;
  if (file.empty()) file = chooser_.toSave(this, drawing.shown->title);
  return !file.empty() && saveTo(drawing, file);
}

bool MainWindow::mayLose(OpenDrawing& drawing) {
  if (!drawing.isModified()) return true;
  tabs_->turnTo(drawing);
  switch (askAboutUnsaved(titleOf(drawing), this)) {
    case UnsavedAnswer::Save:
      return saveOrAskWhere(drawing);
    case UnsavedAnswer::Discard:
      return true;
    case UnsavedAnswer::Cancel:
      break;
  }
  return false;
}

void MainWindow::closeDrawing(OpenDrawing& drawing) {
  if (mayLose(drawing)) dropDrawing(drawing);
}

void MainWindow::dropDrawing(const OpenDrawing& drawing) {
  tabs_->remove(drawing);
  workspace_.close(drawing);
  if (OpenDrawing* current = workspace_.current()) tabs_->turnTo(*current);
  refresh();
}

// --- what the window shows ---

void MainWindow::turnedTo(OpenDrawing& drawing) {
  workspace_.makeCurrent(drawing);
  refresh();
}

void MainWindow::refresh() {
  tools_.refresh();
  refreshDrawings();
}

void MainWindow::refreshDrawings() {
  tabs_->refresh();
  setFocusProxy(tabs_->drawings() > 0 ? &tabs_->viewAt(tabs_->current()) : nullptr);
  refreshActions();
  listDocuments();
  listPanels();
  menus_.refresh();
}

void MainWindow::refreshLater() {
  refreshTimer_.start(0);
}

void MainWindow::refreshActions() {
  const OpenDrawing* drawing = workspace_.current();
  const bool isOpen = drawing != nullptr;
  setWindowTitle(isOpen ? titleOf(*drawing).replace("[*]", "[*][*]") + "[*] \u2014 " + kProgramName
                        : QString(kProgramName));
  setWindowModified(isOpen && drawing->isModified());
  for (QAction* action : {save_, saveAs_, close_}) action->setEnabled(isOpen);
  const std::string undoName = isOpen ? drawing->document().undoName() : std::string();
  const std::string redoName = isOpen ? drawing->document().redoName() : std::string();
  undo_->setText(withStep("&Undo", undoName));
  undo_->setEnabled(!undoName.empty());
  redo_->setText(withStep("&Redo", redoName));
  redo_->setEnabled(!redoName.empty());
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
  panelItems_ = panels_.makeActions();
  menus_.setOwnItems("Panels", panelItems_);
}

}  // namespace host
