#include "WindowParts.h"

#include <QAction>
#include <QMainWindow>
#include <utility>

#include "DrawingTabs.h"
#include "DrawingView.h"
#include "Session.h"
#include "Workspace.h"

namespace host {

QAction* WindowParts::command(const QString& text, const QList<QKeySequence>& keys,
                              std::function<void()> run) const {
  auto* action = new QAction(text, &window);
  action->setShortcuts(keys);
  window.addAction(action);
  QObject::connect(action, &QAction::triggered, &window, [&session = session, run = std::move(run)] {
    if (session.takesCommands()) run();
  });
  return action;
}

OpenDrawing* WindowParts::drawing() const {
  return workspace.current();
}

DrawingView* WindowParts::view() const {
  const OpenDrawing* current = drawing();
  return current == nullptr ? nullptr : tabs.viewOf(*current->shown);
}

}  // namespace host
