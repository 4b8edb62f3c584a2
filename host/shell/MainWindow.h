// The window: menus, and a tab for each open drawing.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "Autosave.h"
#include "EditCommands.h"
#include "FileCommands.h"
#include "HostPanels.h"
#include "LookCommands.h"
#include "MenuBar.h"
#include "PanelAction.h"
#include "PanelDesk.h"
#include "Pickers.h"
#include "StatusLine.h"
#include "ToolDesk.h"
#include "ViewCommands.h"
#include "WindowParts.h"
#include "WindowSettings.h"
#include "Workspace.h"

namespace host {

class MainWindow : public QMainWindow {
 public:
  // `host` and `session` must outlive the window. `language` is the tag of the one that the program speaks;
  // empty: the environment's. From construction to destruction the host's alerts come up as boxes over it.
  MainWindow(Host& host, Session& session, FileChooser chooser, const std::string& language = {});
  ~MainWindow() override;

  // Opens the files that can be opened. A sentence for each of the others.
  std::vector<std::string> openFiles(const std::vector<std::string>& files);
  // Asks what is to become of the work that earlier runs have left behind, if there is any.
  void offerLostDrawings();
  // One sentence each, in one box.
  void tell(const std::vector<std::string>& sentences);
  // To be called after documents or what plug-ins registered may have changed.
  void refresh();

  // Called after every command.
  std::function<void()> onCommandDone;
  // Called after a choice of the user that is to last: a good time to store the preferences.
  std::function<void()> onChoice;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  DrawingTabs* makeTabs();
  WindowParts makeParts();
  void makeActions();
  void followHost();

  void about();
  void chooseMenuItem(AIMenuItemHandle item);
  void toolDone(bool drawingHasChanged);
  void tellFailure(const std::string& command, SPErr code);
  void turnedTo(OpenDrawing& drawing);

  void refreshTitle();
  void refreshLater();  // what plug-ins may have changed outside messages
  void refreshDrawings();
  void listDocuments();
  void listPanels();

  Host& host_;
  Session& session_;
  Workspace workspace_;
  WindowSettings settings_;
  MenuBar menus_;
  ToolDesk tools_;
  PanelDesk panels_;
  PanelAction panelAction_;
  Pickers pickers_;
  DrawingTabs* tabs_;
  WindowParts parts_;
  Autosave autosave_;
  FileCommands files_;
  EditCommands edits_;
  ViewCommands views_;
  LookCommands looks_;
  StatusLine status_;
  QList<QAction*> documents_;  // those of the menu Window
  QList<QAction*> panelItems_;
  QTimer refreshTimer_;
  HostPanels hostPanels_;
};

}  // namespace host
