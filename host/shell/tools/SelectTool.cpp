#include "SelectTool.h"

#include <QKeyEvent>
#include <algorithm>
#include <set>

#include "ArtPicking.h"
#include "DrawingView.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "SelectionCommands.h"
#include "ToolGlyphs.h"

namespace host {
namespace {

constexpr double kReach = 3;  // pixels about the pointer

AIRealRect areaAbout(const DrawingView& view, AIRealPoint point) {
  const double reach = kReach / view.drawing().shown->view.pixelsPerUnit();
  return {point.x - reach, point.y + reach, point.x + reach, point.y - reach};
}

// What a click or a frame means that has met this art.
std::vector<ArtId> meantBy(const Document& document, const std::vector<ArtId>& met,
                           Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::AltModifier)) return met;
  std::set<ArtId> wholes;
  for (const ArtId id : met) wholes.insert(outermostOf(document, id));
  std::vector<ArtId> art;
  for (const ArtId whole : wholes) {
    const std::vector<ArtId> inside = selectableArt(document, whole);
    art.insert(art.end(), inside.begin(), inside.end());
  }
  return art;
}

void setSelected(Document& document, const std::vector<ArtId>& art, bool selected) {
  for (const ArtId id : art) document.setSelected(id, selected);
}

}  // namespace

HostTool::Face SelectTool::face() const {
  return {"Select", Qt::Key_V, arrowGlyph()};
}

QCursor SelectTool::cursor(const DrawingView&, Qt::KeyboardModifiers) const {
  return Qt::ArrowCursor;
}

void SelectTool::pressed(DrawingView&, const PointerEvent& event) {
  frame_.begin(event);
}

void SelectTool::dragged(DrawingView& view, const PointerEvent& event) {
  frame_.follow(view, event);
}

void SelectTool::released(DrawingView& view, const PointerEvent& event) {
  if (!frame_.isOpen()) return;
  frame_.follow(view, event);
  if (frame_.isFrame()) {
    selectFramed(view.drawing().document(), event.modifiers);
  } else {
    click(view, event);
  }
  frame_.end(view);
  done_();
}

void SelectTool::click(DrawingView& view, const PointerEvent& event) {
  Document& document = view.drawing().document();
  const ArtId under = topmostArtIn(document, areaAbout(view, event.point));
  std::vector<ArtId> art;
  if (under != 0) art = meantBy(document, {under}, event.modifiers);
  if (!event.modifiers.testFlag(Qt::ShiftModifier)) return selectOnly(document, art);
  const auto isSelected = [&](ArtId id) { return document.isSelected(id); };
  setSelected(document, art, !std::all_of(art.begin(), art.end(), isSelected));
}

void SelectTool::selectFramed(Document& document, Qt::KeyboardModifiers modifiers) {
  const std::vector<ArtId> art = meantBy(document, allArtIn(document, frame_.area()), modifiers);
  if (!modifiers.testFlag(Qt::ShiftModifier)) return selectOnly(document, art);
  setSelected(document, art, true);
}

bool SelectTool::keyPressed(DrawingView& view, const QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape) return false;
  if (frame_.isOpen()) {
    frame_.end(view);
    return true;
  }
  view.drawing().document().deselectAll();
  done_();
  return true;
}

void SelectTool::paint(const DrawingView& view, QPainter& painter) const {
  frame_.paint(view, painter);
}

}  // namespace host
