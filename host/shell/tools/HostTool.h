// A tool of the application's own, beside those that plug-ins bring.
#pragma once

#include <QCursor>
#include <QPainterPath>
#include <QtCore/Qt>

#include "ViewEvents.h"

namespace host {

// Gets what the user does in a view while it is selected. A press is followed by drags and one release, which
// come to the same tool.
class HostTool {
 public:
  struct Face {
    const char* name;      // for the program and for people
    Qt::Key key;           // chooses it while a view has the focus
    QPainterPath drawing;  // in a square of kGlyphSide (ToolGlyphs.h)
  };

  HostTool() = default;
  HostTool(const HostTool&) = delete;
  HostTool& operator=(const HostTool&) = delete;
  virtual ~HostTool() = default;

  virtual Face face() const = 0;
  virtual QCursor cursor(const DrawingView& view, Qt::KeyboardModifiers modifiers) const = 0;
  virtual void pressed(DrawingView& view, const PointerEvent& event) = 0;
  virtual void dragged(DrawingView& view, const PointerEvent& event) = 0;
  virtual void released(DrawingView& view, const PointerEvent& event) = 0;
  // True if the tool has a use for the key.
  virtual bool keyPressed(DrawingView&, const QKeyEvent&) { return false; }
  // Over the drawing, in pixels of the view.
  virtual void paint(const DrawingView&, QPainter&) const {}
};

}  // namespace host
