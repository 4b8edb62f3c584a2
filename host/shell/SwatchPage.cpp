#include "SwatchPage.h"

#include <QGridLayout>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "Document.h"
#include "PaintChip.h"
#include "PaintColours.h"
#include "PaintComponents.h"
#include "PaintText.h"
#include "SliderField.h"
#include "SwatchOrder.h"

namespace host {
namespace {

constexpr int kPaintRole = Qt::UserRole;
constexpr QSize kChip(20, 14);

}  // namespace

SwatchPage::SwatchPage(const Document* document, SwatchId first, PaintColours& colours, Events events)
    : document_(document), first_(first), events_(std::move(events)), list_(new QListWidget) {
  list_->setIconSize(kChip);
  list_->setAccessibleName("Swatches");
  list_->setUniformItemSizes(true);
  setFocusProxy(list_);
  auto* grid = new QGridLayout(this);
  grid->addWidget(list_, 0, 0, 1, 3);
  tint_ =
      new SliderField(*this, *grid, "&Tint:", {100, true, " %"}, [this](double ink) { setTint(1 - ink); });
  AIColor none{};
  none.kind = kNoneColor;
  addPaint("None", none, Qt::white);
  if (document != nullptr) fill(*document, colours);
  connect(list_, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> selected = list_->selectedItems();
    if (!selected.isEmpty()) choose(selected.front());
  });
  connect(list_, &QListWidget::itemDoubleClicked, this, [this] { events_.accepted(); });
}

void SwatchPage::fill(const Document& document, PaintColours& colours) {
  for (const SwatchEntry& entry : listedSwatches(document)) {
    if (entry.swatch == 0) {
      addHeading(*document.swatchGroup(entry.group));
      continue;
    }
    const Swatch& swatch = *document.swatch(entry.swatch);
    if (entry.swatch == first_) firstRow_ = list_->count();
    addPaint(QString::fromStdString(swatch.name), swatch.color, colours.shown(swatch.color));
  }
}

void SwatchPage::addHeading(const SwatchGroup& group) {
  auto* row = new QListWidgetItem(group.name.empty() ? "Group" : QString::fromStdString(group.name), list_);
  row->setFlags(Qt::NoItemFlags);
  QFont bold = list_->font();
  bold.setBold(true);
  row->setFont(bold);
}

void SwatchPage::addPaint(const QString& name, const AIColor& paint, const QColor& colour) {
  const QString words = paintText(paint, document_);
  auto* row = new QListWidgetItem(chipIcon({colour, paint.kind == kNoneColor}, kChip),
                                  name.isEmpty() ? words : name, list_);
  row->setToolTip(words);
  row->setData(kPaintRole, static_cast<int>(paints_.size()));
  paints_.push_back(paint);
}

void SwatchPage::show(const AIColor& paint) {
  const QSignalBlocker quiet(list_);
  paint_ = paint;
  tint_->setEnabled(paint.kind == kCustomColor);
  tint_->show(paint.kind == kCustomColor ? 1 - paint.c.c.tint : 1);
  const int row = rowOf(paint);
  if (row < 0) {
    list_->clearSelection();
  } else if (!list_->item(row)->isSelected()) {
    list_->setCurrentRow(row);
  }
}

// Only now does the list know what it has room for.
void SwatchPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (firstRow_ < 0) return list_->scrollToItem(list_->currentItem());
  QListWidgetItem* const first = list_->item(std::exchange(firstRow_, -1));
  if (list_->currentItem() == nullptr) list_->setCurrentItem(first, QItemSelectionModel::NoUpdate);
  list_->scrollToItem(first, QAbstractItemView::PositionAtTop);
}

void SwatchPage::choose(const QListWidgetItem* row) {
  const AIColor& chosen = paints_[row->data(kPaintRole).toUInt()];
  show(chosen);
  events_.chosen(chosen);
}

void SwatchPage::setTint(AIReal tint) {
  paint_.c.c.tint = tint;
  events_.chosen(paint_);
}

int SwatchPage::rowOf(const AIColor& paint) const {
  int withOtherTint = -1;
  for (int i = 0; i < list_->count(); ++i) {
    const QVariant number = list_->item(i)->data(kPaintRole);
    if (number.isNull()) continue;
    const AIColor& candidate = paints_[number.toUInt()];
    if (isSamePaint(candidate, paint)) return i;
    const bool isCustom = candidate.kind == kCustomColor && paint.kind == kCustomColor;
    if (isCustom && candidate.c.c.color == paint.c.c.color && withOtherTint < 0) withOtherTint = i;
  }
  return withOtherTint;
}

}  // namespace host
