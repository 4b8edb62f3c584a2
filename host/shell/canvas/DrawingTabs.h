// The drawings in the middle of the window.
#pragma once

#include <QStackedWidget>
#include <functional>

class QTabWidget;
class QToolButton;

namespace host {

class DrawingView;
class ViewEvents;
struct OpenDocument;
struct OpenDrawing;

// A tab with a view for each drawing, or a hint while there is none. A drawing must outlive its tab.
class DrawingTabs : public QStackedWidget {
 public:
  struct Commands {
    std::function<void(OpenDrawing&)> chosen;  // the user or the program has turned to its tab
    std::function<void(OpenDrawing&)> close;   // the user wants it closed
  };

  // `events` gets what goes on in the views and must outlive the tabs.
  DrawingTabs(const QString& hint, ViewEvents& events, Commands commands);

  int drawings() const;  // how many
  int current() const;   // -1 if there is none
  void turnTo(int index);
  DrawingView& viewAt(int index) const;
  DrawingView* viewOf(const OpenDocument& open) const;  // null if it has none

  // Turns to the tab of the drawing, which is made if there is none.
  void turnTo(OpenDrawing& drawing);
  void remove(const OpenDrawing& drawing);
  // To be called when drawings, their names or their views may have changed.
  void refresh();

 private:
  QToolButton* closeButtonFor(DrawingView& view);

  ViewEvents& events_;
  Commands commands_;
  QTabWidget* tabs_;
};

QString titleOf(const OpenDrawing& drawing);

}  // namespace host
