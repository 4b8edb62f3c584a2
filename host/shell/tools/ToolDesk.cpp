#include "ToolDesk.h"

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
#include "ToolPalette.h"

namespace host {
namespace {

std::uint64_t currentRevision(Host& host) {
  const Document* current = host.currentDocument();
  return current == nullptr ? 0 : current->revision();
}

}  // namespace

ToolDesk::ToolDesk(QMainWindow& window, Host& host, Session& session, Surroundings surroundings)
    : host_(host),
      session_(session),
      surroundings_(std::move(surroundings)),
      messages_(host, session),
      palette_(new ToolPalette(host, {[this](AIToolHandle tool) { messages_.choose(tool); },
                                      [this](AIToolHandle tool) { editOptions(tool); }})),
      info_(new InfoDisplay) {
  window.addToolBar(Qt::LeftToolBarArea, palette_);
  window.statusBar()->addWidget(info_);
  addSelectTool();
  followHost();
  refresh();
}

ToolDesk::~ToolDesk() {
  host_.onCursor = nullptr;
  host_.onInvalidate = nullptr;
  host_.tools().onInfo = nullptr;
}

void ToolDesk::addSelectTool() {
  ToolRecord tool;
  tool.name = tool.title = tool.tooltip = "Select";
  host_.tools().select(host_.tools().add(std::move(tool)).handle);
}

void ToolDesk::followHost() {
  messages_.onChange = [this] { selectionChanged(); };
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

void ToolDesk::selectionChanged() {
  refresh();
  if (DrawingView* view = currentView()) view->reportPointer();
}

void ToolDesk::showInfo() {
  const Document* current = host_.currentDocument();
  info_->show(current == nullptr ? ToolInfo() : host_.tools().info(),
              current == nullptr ? 1.0 : current->scale());
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
  if (messages_.trackCursor(event.point)) return;
  view.unsetCursor();
  cursor_ = {};
}

void ToolDesk::pointerLeft(DrawingView&) {}

void ToolDesk::pointerPressed(DrawingView&, const PointerEvent& event) {
  work(host_.tools().selected(), [&] { return messages_.mouseDown(event.point); });
}

void ToolDesk::pointerDragged(DrawingView&, const PointerEvent& event) {
  work(host_.tools().selected(), [&] { return messages_.mouseDrag(event.point); });
}

void ToolDesk::pointerReleased(DrawingView&, const PointerEvent& event) {
  work(host_.tools().selected(), [&] { return messages_.mouseUp(event.point); });
}

void ToolDesk::keyPressed(DrawingView&, QKeyEvent&) {}

void ToolDesk::paintOver(DrawingView& view, QPainter& painter) {
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
  const std::uint64_t revision = currentRevision(host_);
  const std::optional<SPErr> code = send();
  if (!code) return;
  const bool wasTold = dialogs.hasSeen() || host_.alerts().size() != alerts;
  surroundings_.done(currentRevision(host_) != revision);
  if (*code != kSPNoError && !wasTold) surroundings_.failed(title, *code);
}

DrawingView* ToolDesk::currentView() const {
  const OpenDocument* current = host_.documents().current();
  return current == nullptr ? nullptr : surroundings_.viewOf(*current);
}

}  // namespace host
