#include "ToolDesk.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <utility>

#include "AnnotatorMessages.h"
#include "DialogWatch.h"
#include "DrawingView.h"
#include "Host.h"
#include "InfoDisplay.h"
#include "OpenDrawing.h"
#include "PainterCanvas.h"
#include "PluginPictures.h"
#include "Session.h"
#include "ToolPalette.h"

namespace host {
namespace {

// Of the current document and its selection; another pair is another state.
std::pair<std::uint64_t, std::uint64_t> currentRevision(Host& host) {
  const Document* current = host.currentDocument();
  if (current == nullptr) return {0, 0};
  return {current->revision(), current->selectionRevision()};
}

}  // namespace

ToolDesk::ToolDesk(QMainWindow& window, Host& host, Session& session, Surroundings surroundings)
    : host_(host),
      session_(session),
      surroundings_(std::move(surroundings)),
      ownTools_(host, [this] { artSelected(); }),
      messages_(host, session),
      palette_(new ToolPalette(host, ownTools_,
                               {[this](AIToolHandle tool) { messages_.choose(tool); },
                                [this](AIToolHandle tool) { editOptions(tool); }})),
      info_(new InfoDisplay) {
  window.addToolBar(Qt::LeftToolBarArea, palette_);
  window.statusBar()->addWidget(info_, 1);
  followHost();
  refresh();
}

ToolDesk::~ToolDesk() {
  host_.onCursor = nullptr;
  host_.onInvalidate = nullptr;
  host_.tools().onInfo = nullptr;
}

void ToolDesk::followHost() {
  messages_.onChange = [this] { toolChanged(); };
  host_.tools().onInfo = [this] { showInfo(); };
  host_.onCursor = [this](const PluginRecord& plugin, std::int32_t id) { showCursor(plugin, id); };
  host_.onInvalidate = [this](const OpenDocument& open, const AIRect& pixels) {
    if (DrawingView* view = surroundings_.viewOf(open)) view->repaintLater(toRectF(pixels));
  };
}

void ToolDesk::refresh() {
  palette_->refresh();
  showInfo();
}

void ToolDesk::toolChanged() {
  refresh();
  DrawingView* view = currentView();
  if (view == nullptr) return;
  view->refresh();  // only some tools show what is selected
  view->reportPointer();
}

void ToolDesk::artSelected() {
  session_.tellChanges();
  surroundings_.done(true);
  showInfo();
}

void ToolDesk::setPointer(const PointerEvent& event) {
  pointer_ = event.point;
  showInfo();
}

HostTool* ToolDesk::ownTool() const {
  return session_.takesCommands() ? ownTools_.selected() : nullptr;
}

void ToolDesk::showInfo() {
  const Document* current = host_.currentDocument();
  if (current == nullptr) return info_->show({});
  if (ownTools_.selected() == nullptr) return info_->show(infoText(host_.tools().info(), *current));
  std::string text = selectionText(*current, extent_.of(*current));
  if (pointer_) {
    if (!text.empty()) text += "   ";
    text += infoText({{kInfoDocX, pointer_->x}, {kInfoDocY, pointer_->y}}, *current);
  }
  info_->show(text);
}

void ToolDesk::showOwnCursor(DrawingView& view, Qt::KeyboardModifiers modifiers) {
  cursor_ = {};
  if (const HostTool* tool = ownTool()) return view.setCursor(tool->cursor(view, modifiers));
  view.unsetCursor();
}

void ToolDesk::showCursor(const PluginRecord& plugin, std::int32_t id) {
  DrawingView* view = currentView();
  if (view == nullptr) return;
  const ShownCursor wanted(view, plugin.handle, id, view->devicePixelRatioF());
  const bool isNew = std::exchange(cursor_, wanted) != wanted;
  if (!isNew && view->testAttribute(Qt::WA_SetCursor)) return;
  view->setCursor(pictureCursor(host_.pictures(plugin.handle), id, view->devicePixelRatioF()));
}

void ToolDesk::editOptions(AIToolHandle tool) {
  work(host_.tools().all().find(tool), [&] { return messages_.editOptions(tool); });
}

void ToolDesk::pointerMoved(DrawingView& view, const PointerEvent& event) {
  setPointer(event);
  if (!messages_.trackCursor(event.point)) showOwnCursor(view, event.modifiers);
}

void ToolDesk::pointerLeft(DrawingView&) {
  pointer_.reset();
  showInfo();
}

void ToolDesk::pointerPressed(DrawingView& view, const PointerEvent& event) {
  setPointer(event);
  pressed_ = ownTool();
  if (pressed_ == nullptr) {
    return work(host_.tools().selected(), [&] { return messages_.mouseDown(event.point); });
  }
  pressed_->pressed(view, event);
  showOwnCursor(view, event.modifiers);
}

void ToolDesk::pointerDragged(DrawingView& view, const PointerEvent& event) {
  setPointer(event);
  if (pressed_ != nullptr) return pressed_->dragged(view, event);
  work(host_.tools().selected(), [&] { return messages_.mouseDrag(event.point); });
}

void ToolDesk::pointerReleased(DrawingView& view, const PointerEvent& event) {
  HostTool* pressed = std::exchange(pressed_, nullptr);
  if (pressed == nullptr) {
    return work(host_.tools().selected(), [&] { return messages_.mouseUp(event.point); });
  }
  pressed->released(view, event);
  showOwnCursor(view, event.modifiers);
}

void ToolDesk::keyPressed(DrawingView& view, QKeyEvent& event) {
  if (!session_.takesCommands()) return;
  const AIToolHandle chosen = ownTools_.withKey(event);
  HostTool* tool = ownTools_.selected();
  const bool isUsed =
      chosen != nullptr ? messages_.choose(chosen) : tool != nullptr && tool->keyPressed(view, event);
  if (isUsed) event.accept();
}

void ToolDesk::paintOver(DrawingView& view, QPainter& painter) {
  if (const HostTool* tool = ownTools_.selected()) {
    overlay_.paint(view, extent_.of(view.drawing().document()), painter);
    tool->paint(view, painter);
  }
  PainterCanvas canvas(painter, view.rect());
  drawAnnotations(host_, session_, *view.drawing().shown, canvas);
}

void ToolDesk::aboutToMove(DrawingView& view) {
  invalidateAnnotations(host_, session_, *view.drawing().shown);
}

void ToolDesk::moved(DrawingView&) {}

void ToolDesk::work(const ToolRecord* tool, const std::function<std::optional<SPErr>()>& send) {
  const std::string title = tool == nullptr ? std::string() : tool->title;
  const std::size_t alerts = host_.alerts().size();
  DialogWatch dialogs;
  const auto revision = currentRevision(host_);
  const std::optional<SPErr> code = send();
  if (!code) return;
  const bool wasTold = dialogs.hasSeen() || host_.alerts().size() != alerts;
  session_.tellChanges();
  surroundings_.done(currentRevision(host_) != revision);
  if (*code != kSPNoError && !wasTold) surroundings_.failed(title, *code);
}

DrawingView* ToolDesk::currentView() const {
  const OpenDocument* current = host_.documents().current();
  return current == nullptr ? nullptr : surroundings_.viewOf(*current);
}

}  // namespace host
