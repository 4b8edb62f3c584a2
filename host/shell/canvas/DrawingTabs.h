// The drawings in the middle of the window.
#pragma once

#include <QStackedWidget>
#include <functional>

#include "AIDocument.h"

class QTabWidget;
class QToolButton;

namespace host {

class CanvasFrame;
class DrawingView;
class ViewEvents;
struct OpenDocument;
struct OpenDrawing;

// A tab with a view for each drawing, or a hint while there is none. A drawing must outlive its tab.
class DrawingTabs : public QStackedWidget {
 public:
  struct Commands {
    std::function<void(OpenDrawing&)> chosen;            // the user or the program has turned to its tab
    std::function<void(OpenDrawing&)> close;             // the user wants it closed
    std::function<void(OpenDrawing&)> unitsChosen = {};  // its rulers count in something else
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
  // What the rulers of a drawing count in, as if the user had chosen it at the rulers.
  void chooseUnits(OpenDrawing& drawing, AIRulerUnits units);
  // Of all drawings, those that come too; at first they are shown.
  void showRulers(bool shown);
  bool showsRulers() const { return showsRulers_; }
  // To be called when drawings, their names or their views may have changed.
  void refresh();

 private:
  CanvasFrame& frameAt(int index) const;
  QToolButton* closeButtonFor(DrawingView& view);

  ViewEvents& events_;
  Commands commands_;
  QTabWidget* tabs_;
  bool showsRulers_ = true;
};

QString titleOf(const OpenDrawing& drawing);

}  // namespace host
