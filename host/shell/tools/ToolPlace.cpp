#include "ToolPlace.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace host {
namespace {

constexpr int kArrowSide = 10;  // pixels, in the lower right corner; the part that takes clicks
constexpr int kTriangleSide = 4;
constexpr int kTriangleInset = 3;

// Titles are shown as they are.
QString literal(QString text) {
  return text.replace('&', "&&");
}

}  // namespace

ToolPlace::ToolPlace(const QKeySequence& keys, Commands commands)
    : keys_(keys), commands_(std::move(commands)), menu_(new QMenu(this)) {
  setCheckable(true);
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QToolButton::clicked, this, [this] { commands_.choose(visible_); });
  if (keys.isEmpty()) return;
  auto* shortcut = new QShortcut(keys, this);
  connect(shortcut, &QShortcut::activated, this, [this] { chooseByKeys(); });
}

void ToolPlace::show(const std::vector<PaletteTool>& tools, AIToolHandle visible, AIToolHandle selected) {
  if (!hasTools(tools)) fillMenu(tools);
  visible_ = visible;
  const QList<QAction*> actions = menu_->actions();
  bool on = false;
  for (std::size_t i = 0; i < tools.size(); ++i) {
    QAction& action = *actions[static_cast<int>(i)];
    action.setIcon(tools[i].icon);
    action.setChecked(tools[i].handle == visible);
    if (tools[i].handle == visible) showTool(tools[i]);
    on = on || tools[i].handle == selected;
  }
  setChecked(on);
}

bool ToolPlace::hasTools(const std::vector<PaletteTool>& tools) const {
  return std::equal(tools.begin(), tools.end(), tools_.begin(), tools_.end(),
                    [](const PaletteTool& tool, AIToolHandle known) { return tool.handle == known; });
}

void ToolPlace::fillMenu(const std::vector<PaletteTool>& tools) {
  menu_->clear();
  tools_.clear();
  for (const PaletteTool& tool : tools) {
    tools_.push_back(tool.handle);
    QAction* action = menu_->addAction(literal(tool.title));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, handle = tool.handle, action] {
      action->setChecked(handle == visible_);
      commands_.choose(handle);
    });
  }
  setMenu(tools.size() > 1 ? menu_ : nullptr);
}

void ToolPlace::showTool(const PaletteTool& tool) {
  setIcon(tool.icon);
  if (tool.icon.isNull()) setText(literal(tool.title.left(2)));
  setAccessibleName(tool.title);
  const QString keys = keys_.isEmpty() ? QString() : " (" + keys_.toString(QKeySequence::NativeText) + ")";
  setToolTip(((tool.tooltip.isEmpty() ? tool.title : tool.tooltip) + keys).toHtmlEscaped());
}

void ToolPlace::chooseByKeys() {
  auto next = std::find(tools_.begin(), tools_.end(), visible_);
  if (isChecked() && next != tools_.end() && ++next == tools_.end()) next = tools_.begin();
  if (next != tools_.end()) commands_.choose(*next);
}

bool ToolPlace::isArrow(const QPoint& point) const {
  return menu() != nullptr && point.x() >= width() - kArrowSide && point.y() >= height() - kArrowSide;
}

// The arrow of the style would lie on the icon.
void ToolPlace::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.features &= ~QStyleOptionToolButton::HasMenu;
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  if (menu() == nullptr) return;
  const QPointF corner(width() - kTriangleInset, height() - kTriangleInset);
  const QPointF triangle[] = {corner, corner - QPointF(kTriangleSide, 0), corner - QPointF(0, kTriangleSide)};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::ButtonText));
  painter.drawConvexPolygon(triangle, 3);
}

void ToolPlace::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && isArrow(event->pos())) return showMenu();
  QToolButton::mousePressEvent(event);
}

// A dialog that comes up waits until the click is over.
void ToolPlace::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || isArrow(event->pos()))
    return QToolButton::mouseDoubleClickEvent(event);
  QTimer::singleShot(0, this, [this] { commands_.editOptions(visible_); });
}

void ToolPlace::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return commands_.editOptions(visible_);
    case Qt::Key_Right:
      if (menu() != nullptr) return showMenu();
      break;
    default:
      break;
  }
  QToolButton::keyPressEvent(event);
}

void ToolPlace::contextMenuEvent(QContextMenuEvent*) {
  if (menu() != nullptr) showMenu();
}

}  // namespace host
