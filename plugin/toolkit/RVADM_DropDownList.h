// A list that pops up, of which one row is chosen.
#pragma once

#include <QComboBox>
#include <QPointer>

#include "RVADM_ComboEntry.h"
#include "RVADM_ListBase.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

// Notifies only of what the user chooses. The handler may delete rows, but the list itself only later. The
// wheel goes on to what lies behind.
class RVADM_DropDownList : public RVADM_QMetaObjectProxy<RVADM_ListBase, QComboBox> {
  Q_OBJECT

 public:
  // Roles of a row's data.
  static constexpr int kEntryRole = Qt::UserRole;        // void*: its entry
  static constexpr int kPictureRole = Qt::UserRole + 1;  // number of its picture, 0 for none

  explicit RVADM_DropDownList(RVADM_ItemParent* itemParent);
  ~RVADM_DropDownList() override;

  void GetBestSize(QSize* size) override;  // as wide as the widest row asks for

  int GetEntryCount() override;
  RVADM_ComboEntry* GetEntry(int index) override;
  RVADM_ComboEntry* FindEntry(const char* text) override;  // whose text is exactly this one
  RVADM_ComboEntry* GetActiveEntry() override;
  void Clear() override;  // up to the first row that is no entry

  void showPopup() override;
  void hidePopup() override;

  // Decides on the popup's geometry, on the screen, by the pixels that its rows lack; more than 0: it grows
  // to the right. False leaves it as Qt has it.
  virtual bool WidenPopup(QRect& rect, int delta);

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const;  // in place of Qt's
  bool event(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private Q_SLOTS:
  void itemHighlighted(int index);

 private:
  bool IsOpen() const;
  int PopupWidthForRows() const;
  void ReloadPictures();

  QPointer<QWidget> popup;  // the window of the list, from its first opening on
};

}  // namespace qRVADM
