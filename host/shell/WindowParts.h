// What the groups of the window's commands share.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QMainWindow;

namespace host {

class DrawingTabs;
class DrawingView;
class Host;
class MenuBar;
class Session;
class WindowSettings;
class Workspace;
struct OpenDrawing;

struct WindowParts {
  QMainWindow& window;
  Host& host;
  Session& session;
  Workspace& workspace;
  DrawingTabs& tabs;
  MenuBar& menus;
  WindowSettings& settings;
  std::function<void()> refresh;  // to be called after documents or what is shown of them may have changed
  std::function<void()> store;    // and this one after the settings have
  std::function<void(const std::vector<std::string>& sentences)> tell;

  // The window's; it does nothing while the session takes no commands. Its keys work whatever the menus hold.
  QAction* command(const QString& text, const QList<QKeySequence>& keys, std::function<void()> run) const;

  OpenDrawing* drawing() const;  // the current one; null if none is open
  DrawingView* view() const;     // its view
};

}  // namespace host
