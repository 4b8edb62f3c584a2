#include "RVADM_DropDownList.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <optional>

#include "QtManager.h"
#include "RVADM_Dialog.h"

namespace qRVADM {
namespace {

constexpr int kMostVisibleRows = 32;

// No wider than the screen, and not beyond its right edge.
QRect OnScreen(QRect rect, const QRect& screen) {
  rect.setWidth(std::min(rect.width(), screen.width()));
  if (rect.right() > screen.right()) rect.moveRight(screen.right());
  return rect;
}

}  // namespace

RVADM_DropDownList::RVADM_DropDownList(RVADM_ItemParent* itemParent)
    : RVADM_QMetaObjectProxy(itemParent, kDropDownListKind) {
  SetFontKind(0);
  ConnectToDialog(SIGNAL(activated(int)), SLOT(OnComboBoxChanged()), false);
  connect(this, SIGNAL(highlighted(int)), this, SLOT(itemHighlighted(int)));
  TakeNoFocusOnPalette();
  setMaxVisibleItems(kMostVisibleRows);
}

RVADM_DropDownList::~RVADM_DropDownList() {
  RVADM_DropDownList::Clear();
}

// --- rows ---

int RVADM_DropDownList::GetEntryCount() {
  return count();
}

RVADM_ComboEntry* RVADM_DropDownList::GetEntry(int index) {
  const QVariant entry = itemData(index, kEntryRole);
  return entry.userType() == QMetaType::VoidStar ? static_cast<RVADM_ComboEntry*>(entry.value<void*>())
                                                 : nullptr;
}

RVADM_ComboEntry* RVADM_DropDownList::FindEntry(const char* wanted) {
  return GetEntry(findData(QString::fromUtf8(wanted), Qt::DisplayRole, Qt::MatchCaseSensitive));
}

RVADM_ComboEntry* RVADM_DropDownList::GetActiveEntry() {
  return GetEntry(currentIndex());
}

void RVADM_DropDownList::Clear() {
  while (RVADM_ComboEntry* entry = RVADM_DropDownList::GetEntry(0)) delete entry;
}

// --- size ---

// A change of the policy resizes the widget, and leaves a size hint of the other policy behind, which being
// shown clears.
void RVADM_DropDownList::GetBestSize(QSize* best) {
  const QSize before = QComboBox::size();
  const SizeAdjustPolicy policy = sizeAdjustPolicy();
  setSizeAdjustPolicy(AdjustToContents);
  *best = sizeHint();
  setSizeAdjustPolicy(policy);
  QShowEvent shown;
  showEvent(&shown);
  resize(before);
}

// --- popup ---

bool RVADM_DropDownList::IsOpen() const {
  return popup && popup->isVisible();
}

// Pictures are as large in the popup as in the control, whatever the style makes of other lists.
void RVADM_DropDownList::showPopup() {
  view()->setIconSize(iconSize());
  {
    std::optional<QSignalBlocker> quiet;
    if (isEditable()) quiet.emplace(this);
    QComboBox::showPopup();
  }
  popup = view()->parentWidget();
  if (!popup || model() == nullptr) return;
  QRect rect = popup->geometry();
  if (!WidenPopup(rect, PopupWidthForRows() - view()->width())) return;
  if (!window()->testAttribute(Qt::WA_DontShowOnScreen)) rect = OnScreen(rect, screen()->geometry());
  popup->setGeometry(rect);
}

int RVADM_DropDownList::PopupWidthForRows() const {
  int widest = 0;
  for (int row = 0; row < count(); ++row) {
    const QModelIndex index = model()->index(row, modelColumn(), rootModelIndex());
    widest = std::max(widest, view()->sizeHintForIndex(index).width());
  }
  const bool scrolls = count() > maxVisibleItems();
  return widest + (scrolls ? view()->verticalScrollBar()->sizeHint().width() : 0);
}

bool RVADM_DropDownList::WidenPopup(QRect& rect, int delta) {
  if (delta < 1) return false;
  rect.setRight(rect.right() + delta);
  return true;
}

// Nobody gets the keyboard from a list that is itself being hidden: its dialog may be going.
void RVADM_DropDownList::hidePopup() {
  const bool wasOpen = IsOpen();
  QComboBox::hidePopup();
  if (!wasOpen || !isVisible()) return;
  const bool takesFocus = (focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
  (takesFocus ? this : GetDialog()->GetWidget())->setFocus(Qt::PopupFocusReason);
}

// A tip that is up belongs to another row now.
void RVADM_DropDownList::itemHighlighted(int index) {
  if (!QToolTip::isVisible()) return;
  QToolTip::hideText();
  if (index >= 0) QToolTip::showText(QCursor::pos(), itemData(index, Qt::ToolTipRole).toString(), view());
}

// --- look ---

// The control looks pressed while it is open.
void RVADM_DropDownList::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  if (!IsOpen()) return;
  option->state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
  option->state |= QStyle::State_On;
}

void RVADM_DropDownList::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.setPen(palette().color(QPalette::ButtonText));
  QStyleOptionComboBox option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool RVADM_DropDownList::event(QEvent* event) {
  if (event->type() != RVADMQtManager::kThemeChangedEvent) return QComboBox::event(event);
  ReloadPictures();
  return true;
}

void RVADM_DropDownList::ReloadPictures() {
  for (int row = 0; row < count(); ++row) {
    const int picture = itemData(row, kPictureRole).toInt();
    RVADM_ComboEntry* entry = GetEntry(row);
    if (entry != nullptr && picture != 0) entry->SetPicture(picture);
  }
}

void RVADM_DropDownList::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace qRVADM
