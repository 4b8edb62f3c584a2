// The commands of the menu View that say how a drawing is shown.
#pragma once

#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace host {

class DrawingView;
struct WindowParts;

class ViewCommands {
 public:
  // `parts` must outlive it.
  explicit ViewCommands(const WindowParts& parts);

  // To be called after documents may have changed.
  void refresh();

 private:
  void makeZoom();
  void makeRulers();
  QAction* commandOn(const char* text, const char* keys, std::function<void(DrawingView&)> run,
                     const char* otherKeys = "", const char* shortKey = "");
  void fitArtboard(DrawingView& view);

  const WindowParts& parts_;
  QAction* rulers_ = nullptr;
  QMenu* units_ = nullptr;
  std::vector<QAction*> ofDrawing_;  // those that need one
};

}  // namespace host
