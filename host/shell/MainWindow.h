// The window: menus, and a tab for each open drawing.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "FileChooser.h"
#include "MenuBar.h"
#include "PanelDesk.h"
#include "Pickers.h"
#include "Theme.h"
#include "ToolDesk.h"
#include "Workspace.h"

namespace host {

class DrawingTabs;

class MainWindow : public QMainWindow {
 public:
  // `host` and `session` must outlive the window. From construction to destruction the host's alerts come up
  // as boxes over it.
  MainWindow(Host& host, Session& session, FileChooser chooser);
  ~MainWindow() override;

  // Opens the files that can be opened. A sentence for each of the others.
  std::vector<std::string> openFiles(const std::vector<std::string>& files);
  // One sentence each, in one box.
  void tell(const std::vector<std::string>& sentences);
  // To be called after documents or what plug-ins registered may have changed.
  void refresh();

  // Called after every command.
  std::function<void()> onCommandDone;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void buildTabs();
  void buildActions();
  QAction* addCommand(const char* text, const QKeySequence& keys, void (MainWindow::*command)());

  void open();
  void save();
  void saveAs();
  void closeCurrent();
  void undo();
  void redo();
  void about();
  void chooseTheme(Theme theme);
  void chooseMenuItem(AIMenuItemHandle item);
  void toolDone(bool drawingHasChanged);
  void tellFailure(const std::string& command, SPErr code);

  void openAndTell(const std::vector<std::string>& files);
  bool saveTo(OpenDrawing& drawing, const std::string& file);
  bool saveOrAskWhere(OpenDrawing& drawing);
  bool mayLose(OpenDrawing& drawing);            // after asking what is to become of unsaved changes
  void closeDrawing(OpenDrawing& drawing);       // after the same question
  void dropDrawing(const OpenDrawing& drawing);  // unasked
  void turnedTo(OpenDrawing& drawing);

  void refreshActions();
  void refreshLater();  // what plug-ins may have changed outside messages
  void refreshDrawings();
  void listDocuments();
  void listPanels();

  Host& host_;
  Session& session_;
  Workspace workspace_;
  FileChooser chooser_;
  DrawingTabs* tabs_ = nullptr;
  MenuBar menus_;
  ToolDesk tools_;
  PanelDesk panels_;
  Pickers pickers_;
  QAction* save_ = nullptr;
  QAction* saveAs_ = nullptr;
  QAction* close_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QList<QAction*> documents_;  // those of the menu Window
  QList<QAction*> panelItems_;
  QTimer refreshTimer_;
};

}  // namespace host
