#include "RVADM_ComboEntry.h"

#include <QPixmap>
#include <QSignalBlocker>
#include <algorithm>

#include "CopyQString.h"
#include "CopyUTF8.h"
#include "Icons.h"
#include "Localize.h"
#include "RVADM_DropDownList.h"

namespace qRVADM {
namespace {

QString ShownText(const char* text, bool localize) {
  return QString::fromUtf8(localize ? Localize(text) : text);
}

std::optional<std::string> Copied(const char* text) {
  return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

QIcon PictureOf(int number, const QSize& size) {
  if (number > 0) return GetIcon(number);
  if (number == 0) return {};
  QPixmap room(size);
  room.fill(Qt::transparent);
  return room;
}

}  // namespace

RVADM_ComboEntry::RVADM_ComboEntry(RVADM_DropDownList* owner, const char* text, bool localize)
    : rawText(Copied(text)), list(owner) {
  const QSignalBlocker quiet(list);
  list->addItem(ShownText(text, localize), QVariant::fromValue<void*>(this));
}

RVADM_ComboEntry::~RVADM_ComboEntry() {
  const QSignalBlocker quiet(list);
  list->removeItem(Row());
}

int RVADM_ComboEntry::Row() const {
  void* self = const_cast<RVADM_ComboEntry*>(this);
  return list->findData(QVariant::fromValue(self), Qt::UserRole, Qt::MatchCaseSensitive);
}

void RVADM_ComboEntry::Notify(int code) {
  list->Notify(code);
}

void RVADM_ComboEntry::SetText(const char* text, bool localize) {
  const QSignalBlocker quiet(list);
  list->setItemText(Row(), ShownText(text, localize));
  rawText = Copied(text);
}

void RVADM_ComboEntry::GetText(char* buffer, int size, bool current) const {
  const auto room = static_cast<std::size_t>(std::max(size, 0));
  if (current) {
    CopyQString(buffer, list->itemText(Row()), room);
  } else {
    CopyUTF8(buffer, rawText ? rawText->c_str() : "", room);
  }
}

void RVADM_ComboEntry::Select(bool selected) {
  const int row = Row();
  if (row < 0) return;
  const QSignalBlocker quiet(list);
  list->setCurrentIndex(selected ? row : -1);
}

void RVADM_ComboEntry::SetPicture(int number) {
  const int row = Row();
  if (row < 0) return;
  list->setItemIcon(row, PictureOf(number, list->iconSize()));
  list->setItemData(row, number, RVADM_DropDownList::kPictureRole);
}

}  // namespace qRVADM
