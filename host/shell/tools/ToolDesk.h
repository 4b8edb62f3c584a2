// The tools at work in the window: palette, pointer, cursor, annotations and info display.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <tuple>

#include "HostTools.h"
#include "SelectionExtent.h"
#include "SelectionOverlay.h"
#include "ToolMessages.h"
#include "ViewEvents.h"

class QMainWindow;

namespace host {

class InfoDisplay;
class ToolPalette;
struct OpenDocument;
struct PluginRecord;
struct ToolRecord;

class ToolDesk : public ViewEvents {
 public:
  struct Surroundings {
    std::function<DrawingView*(const OpenDocument&)> viewOf;  // null if the document has no view
    // After a tool was at work for the user, who may see another drawing or another selection now. Plug-ins
    // have been told.
    std::function<void(bool drawingHasChanged)> done;
    // Then, if it answered with a code and told the user nothing: the tool's title and the code.
    std::function<void(const std::string& title, SPErr code)> failed;
  };

  // Adds the application's own tools to the host and puts its palette and display into `window`. The other
  // objects, the window among them, must outlive it.
  ToolDesk(QMainWindow& window, Host& host, Session& session, Surroundings surroundings);
  ~ToolDesk() override;

  // To be called when tools may have been added or the theme has changed.
  void refresh();
  // To be called when the selection may have changed.
  void showInfo();

  void pointerMoved(DrawingView& view, const PointerEvent& event) override;
  void pointerLeft(DrawingView& view) override;
  void pointerPressed(DrawingView& view, const PointerEvent& event) override;
  void pointerDragged(DrawingView& view, const PointerEvent& event) override;
  void pointerReleased(DrawingView& view, const PointerEvent& event) override;
  void keyPressed(DrawingView& view, QKeyEvent& event) override;
  void paintOver(DrawingView& view, QPainter& painter) override;
  void aboutToMove(DrawingView& view) override;
  void moved(DrawingView& view) override;

 private:
  using ShownCursor = std::tuple<const DrawingView*, SPPluginRef, std::int32_t, double>;

  void followHost();
  void toolChanged();
  void artSelected();
  void setPointer(const PointerEvent& event);
  HostTool* ownTool() const;  // null while a plug-in's tool is selected, or no command is taken
  void showOwnCursor(DrawingView& view, Qt::KeyboardModifiers modifiers);
  void showCursor(const PluginRecord& plugin, std::int32_t id);
  void editOptions(AIToolHandle tool);
  // Has the plug-in of the tool at work, by a message that may be none.
  void work(const ToolRecord* tool, const std::function<std::optional<SPErr>()>& send);
  DrawingView* currentView() const;

  Host& host_;
  Session& session_;
  Surroundings surroundings_;
  HostTools ownTools_;
  ToolMessages messages_;
  ToolPalette* palette_;
  InfoDisplay* info_;
  ShownCursor cursor_{};                // of a plug-in
  HostTool* pressed_ = nullptr;         // between a press and its release
  std::optional<AIRealPoint> pointer_;  // where it is over a view, in document units
  SelectionExtent extent_;
  SelectionOverlay overlay_;
};

}  // namespace host
