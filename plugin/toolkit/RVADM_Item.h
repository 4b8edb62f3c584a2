// One item of a dialog.
#pragma once

#include <QSize>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>

#include "ADMRect.h"
#include "ADMTracker.h"
#include "ItemKind.h"
#include "NotifyCode.h"
#include "Placement.h"
#include "RVADM_ItemBase.h"

namespace qRVADM {

class IADMDrawer;
class RVADM_ItemParent;

// An item and its widget are one object, made with `new` and owned by its Qt parent, which is the widget of
// the parent it is given. Dialogs keep plain pointers to their items and never delete them. Bounds are in the
// coordinates of that Qt parent. What goes wrong on the way to the dialog's handler is a misspelt name and
// throws std::runtime_error.
class RVADM_Item : public virtual internal::RVADM_ItemBase {
 public:
  RVADM_Dialog* GetDialog() override;
  QWidget* GetWidget() override;

  // kUserChanged calls the dialog's OnItemNotify.
  virtual void Notify(int code);
  // Null takes the tip away. Unless `keepMarkup`, markup shows as characters.
  virtual void SetTip(const char* text, bool localize, bool keepMarkup);
  // `growToFit`: the size becomes the best one, smaller too. Throws if the widget has no text.
  virtual void SetText(const char* utf8, bool localize, bool growToFit);
  virtual void SetTextW(const std::uint16_t* utf16, bool growToFit);  // the stored text stays
  // `current`: as shown; else what SetText was last given, untranslated, or an empty text. At most `size`
  // bytes or units with the terminator, never half a character.
  virtual void GetText(char* buffer, int size, bool current);
  virtual void GetTextW(std::uint16_t* buffer, int size, bool current);  // empty unless `current`
  virtual void SetVisible(bool visible);
  virtual bool IsVisible();  // not hidden, in a dialog that may itself not be shown yet
  virtual void SetFocus(bool focus);
  virtual bool HasFocus();
  virtual void Invalidate();
  // Sees a mouse or key event before the widget does; false keeps it from the widget where the item allows
  // that.
  virtual bool Track(ADMTracker tracker);
  virtual void Draw(IADMDrawer& drawer);
  virtual void GetBounds(ADMRect* bounds);
  virtual void SetBounds(const ADMRect& bounds);  // and notifies of it, whether they change or not
  virtual void GetBestSize(QSize* size);
  virtual void SetEnabled(bool enabled);
  virtual bool IsEnabled();
  virtual QString GetTextInt();
  virtual void SetTextInt(const QString& shown);

  // Codes of SIGNAL and SLOT. A queued call comes from the event loop.
  void ConnectToDialog(const char* signal, const char* slot, bool queued);
  // By the bare name. The slot has run when this returns; the item, and even the dialog, may be gone then.
  void CallDialogSlot(const char* slotName);
  // 0: the kind of the dialog. The size becomes the best one. Kinds of FontKinds.h.
  void SetFontKind(int fontKind);
  bool IsKind(int itemKind) const { return kind == itemKind; }

  // Placement: flags of Placement.h, gaps in pixels or kDefaultGap.
  void AlignToRect(const ADMRect& target, int flags);
  void AlignWith(RVADM_Item* reference, int flags);
  // These move `other` to a side of this item.
  void PlaceBelow(RVADM_Item* other, int flags, int gap);
  void PlaceAbove(RVADM_Item* other, int flags, int gap);
  void PlaceRightOf(RVADM_Item* other, int flags, int gap);
  void PlaceLeftOf(RVADM_Item* other, int flags, int gap);
  // The content rectangle of the dialog, or of the item's parent, takes after this item.
  void FitDialogToItem(int flags);
  void FitParentToItem(int flags);
  void MoveTo(int x, int y, bool relative);
  int GetLeft();
  int GetTop();
  int GetRight();
  int GetBottom();
  int GetWidth();
  int GetHeight();
  void SetLeft(int left);      // moves
  void SetRight(int right);    // changes the width, which may become negative
  void SetBottom(int bottom);  // changes the height
  void SetWidth(int width);
  void SetHeight(int height);
  void SetSize(int width, int height);

 protected:
  // `parent`: not owned; for a radio group the group's own parent is kept instead.
  RVADM_Item(RVADM_ItemParent* parent, int kind);
  void SetItemWidget(QWidget* itemWidget) { widget = itemWidget; }  // by the proxy, once the Qt part stands
  void FitToBestSize();
  // What palettes do not give to buttons and lists: the keyboard.
  void TakeNoFocusOnPalette();

 private:
  std::optional<std::string> text;  // last given to SetText, before localisation
  QWidget* widget = nullptr;        // this object's own
  RVADM_ItemParent* parent;
  int kind;
};

}  // namespace qRVADM
