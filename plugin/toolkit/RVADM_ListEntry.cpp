#include "RVADM_ListEntry.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

#include "CopyQString.h"
#include "CopyUTF8.h"
#include "IADMDrawer.h"
#include "Localize.h"
#include "RVADM_ListBox.h"

namespace qRVADM {

// The text stands before the row joins the list: it is laid out once.
RVADM_ListEntry::RVADM_ListEntry(RVADM_ListBox* owner, const char* text, bool localize) : list(owner) {
  if (text != nullptr) SetText(text, localize);
  owner->addItem(this);
}

// A dialog that is notified of a selection might delete more rows while the list is removing this one.
RVADM_ListEntry::~RVADM_ListEntry() {
  QListWidget* widget = listWidget();
  if (widget == nullptr) return;
  const QSignalBlocker quiet(widget);
  widget->takeItem(widget->row(this));
}

void RVADM_ListEntry::Notify(int code) {
  list->Notify(code);
}

void RVADM_ListEntry::Draw(IADMDrawer& drawer) {
  drawer.DrawDefault();
}

bool RVADM_ListEntry::Track(ADMTracker&) {
  return true;
}

void RVADM_ListEntry::SetText(const char* text, bool localize) {
  setText(QString::fromUtf8(localize ? Localize(text) : text));
  if (text == nullptr) {
    rawText.reset();
  } else {
    rawText = text;
  }
}

void RVADM_ListEntry::GetText(char* buffer, int size, bool current) const {
  const auto room = static_cast<std::size_t>(std::max(size, 0));
  if (current) {
    CopyQString(buffer, text(), room);
  } else {
    CopyUTF8(buffer, rawText ? rawText->c_str() : "", room);
  }
}

void RVADM_ListEntry::SetCheckable() {
  setFlags(flags() | Qt::ItemIsUserCheckable);
}

void RVADM_ListEntry::SetChecked(bool checked) {
  setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

bool RVADM_ListEntry::IsChecked() const {
  return checkState() != Qt::Unchecked;
}

void RVADM_ListEntry::Select(bool selected) {
  const QSignalBlocker quiet(list);
  setSelected(selected);
  if (selected) list->setCurrentItem(this);
}

}  // namespace qRVADM
