#include "RVADM_Item.h"

#include <QPointer>
#include <QTextDocument>
#include <QWidget>
#include <cstdlib>
#include <stdexcept>

#include "CopyQString.h"
#include "CopyUTF8.h"
#include "FontKinds.h"
#include "IADMDrawer.h"
#include "ItemText.h"
#include "Localize.h"
#include "QtManager.h"
#include "RVADM_Dialog.h"

namespace qRVADM {
namespace {

using RVADMQtManager::QtManager;

std::size_t Room(int size) {
  return size > 0 ? static_cast<std::size_t>(size) : 0;
}

// Clears the dialog's current item at the end of a meta-call, however it ends, if the dialog is still there.
class CurrentItem {
 public:
  CurrentItem(RVADM_Dialog& owner, RVADM_Item* item) : dialog(owner), object(owner.GetObject()) {
    dialog.currentItem = item;
  }
  CurrentItem(const CurrentItem&) = delete;
  CurrentItem& operator=(const CurrentItem&) = delete;
  ~CurrentItem() {
    if (object) dialog.currentItem = nullptr;
  }

  QObject* Receiver() const { return object; }

 private:
  RVADM_Dialog& dialog;
  QPointer<QObject> object;
};

}  // namespace

RVADM_Item::RVADM_Item(RVADM_ItemParent* itemParent, int itemKind)
    : parent(itemParent->ParentOfItems()), kind(itemKind) {}

RVADM_Dialog* RVADM_Item::GetDialog() {
  return parent->GetDialog();
}

QWidget* RVADM_Item::GetWidget() {
  return widget;
}

void RVADM_Item::Notify(int code) {
  if (code == kUserChanged) GetDialog()->OnItemNotify(this);
}

// --- text ---

void RVADM_Item::SetTip(const char* tip, bool localize, bool keepMarkup) {
  if (tip == nullptr) return widget->setToolTip({});
  QString shown = QString::fromUtf8(localize ? Localize(tip) : tip);
  if (!keepMarkup && Qt::mightBeRichText(shown)) shown = Qt::convertFromPlainText(shown, Qt::WhiteSpacePre);
  widget->setToolTip(shown);
}

void RVADM_Item::SetText(const char* utf8, bool localize, bool growToFit) {
  SetTextInt(QString::fromUtf8(localize ? Localize(utf8) : utf8));
  if (utf8 == nullptr) {
    text.reset();
  } else {
    text = utf8;
  }
  if (growToFit) FitToBestSize();
}

void RVADM_Item::SetTextW(const std::uint16_t* utf16, bool growToFit) {
  SetTextInt(QString::fromUtf16(utf16));
  if (growToFit) FitToBestSize();
}

void RVADM_Item::GetText(char* buffer, int size, bool current) {
  if (current) {
    CopyQString(buffer, GetTextInt(), Room(size));
  } else {
    CopyUTF8(buffer, text ? text->c_str() : "", Room(size));
  }
}

void RVADM_Item::GetTextW(std::uint16_t* buffer, int size, bool current) {
  CopyUTF16(buffer, current ? GetTextInt() : QString(), Room(size));
}

QString RVADM_Item::GetTextInt() {
  return TextOfWidget(*widget);
}

void RVADM_Item::SetTextInt(const QString& shown) {
  if (!SetTextOfWidget(*widget, shown)) throw std::runtime_error("Call to SetTextInt() failed!");
}

// --- state ---

void RVADM_Item::SetVisible(bool visible) {
  widget->setVisible(visible);
}

bool RVADM_Item::IsVisible() {
  return !widget->testAttribute(Qt::WA_WState_Hidden);
}

void RVADM_Item::SetFocus(bool focus) {
  if (focus && widget->focusPolicy() != Qt::NoFocus) {
    widget->setFocus(Qt::OtherFocusReason);
  } else {
    widget->clearFocus();
  }
}

bool RVADM_Item::HasFocus() {
  return widget->hasFocus();
}

void RVADM_Item::SetEnabled(bool enabled) {
  widget->setEnabled(enabled);
}

bool RVADM_Item::IsEnabled() {
  return !widget->testAttribute(Qt::WA_Disabled);
}

void RVADM_Item::Invalidate() {
  if (widget != nullptr) widget->update();
}

// Those that override it keep the tracker. NOLINTNEXTLINE(performance-unnecessary-value-param)
bool RVADM_Item::Track(ADMTracker) {
  return true;
}

void RVADM_Item::Draw(IADMDrawer& drawer) {
  drawer.DrawDefault();
}

void RVADM_Item::SetFontKind(int fontKind) {
  if (fontKind == 0) fontKind = QtManager::IsOnNonModalDialog(GetWidget()) ? kPaletteFont : kDialogFont;
  widget->setFont(FontOfKind(widget->font(), fontKind));
  FitToBestSize();
}

void RVADM_Item::TakeNoFocusOnPalette() {
  if (QtManager::IsOnNonModalDialog(widget)) widget->setFocusPolicy(Qt::NoFocus);
}

// --- the way to the dialog ---

void RVADM_Item::ConnectToDialog(const char* signal, const char* slot, bool queued) {
  const Qt::ConnectionType type = queued ? Qt::QueuedConnection : Qt::AutoConnection;
  if (!QObject::connect(widget, signal, GetDialog()->GetObject(), slot, type)) {
    throw std::runtime_error("Connection to dialog slot failed!");
  }
}

void RVADM_Item::CallDialogSlot(const char* slotName) {
  const CurrentItem current(*GetDialog(), this);
  if (!QMetaObject::invokeMethod(current.Receiver(), slotName, Qt::DirectConnection)) {
    throw std::runtime_error("Meta-call to dialog slot failed!");
  }
}

}  // namespace qRVADM
