// What every dialog of the plug-in is: hooks to make, fill and place its items, and one handler for all that
// the user does.
#pragma once

#include "RVADM_ItemParent.h"

class QEvent;

namespace qRVADM {

class RVADM_Item;
struct ADMDialogMetrics;

class RVADM_Dialog : public RVADM_ItemParent {
 public:
  RVADM_Dialog* GetDialog() override { return this; }
  void ParentToLocalRect(ADMRect* rect) override;  // a dialog's parent is the screen
  void LocalToParentRect(ADMRect* rect) override;
  void GetLocalRect(ADMRect* rect) override = 0;

  // The hooks; they do nothing here.
  virtual void CreateItems();  // once: all items with `new`, default and cancel button
  virtual void InitItems();    // once, after CreateItems: their values
  virtual void OnCommit(int result);
  virtual void LayoutItems();                        // at the end of Init and at every change of size
  virtual void OnItemNotify(RVADM_Item* item);       // the user completed an action on the item
  virtual void OnItemNotifyAsync(RVADM_Item* item);  // later, from the event loop
  virtual void OnUIThemeChanged(QEvent* event);
  virtual void SpareHook();

  // What the two frames do in their own ways.
  virtual void SetTitle(const char* title, bool localize) = 0;
  virtual void GetTitle(char* buffer, int size) = 0;  // UTF-8, as CopyUTF8
  virtual void CenterOnScreen();                      // does nothing here
  virtual void SetSize(int width, int height) = 0;    // of the client area, pixels
  virtual const ADMDialogMetrics& GetMetrics() = 0;
  virtual void GetBoundsRect(ADMRect* bounds) = 0;
  virtual void Update() = 0;
  virtual bool IsResizable() = 0;
  virtual void Init();  // makes, fills and places the items
  virtual void Relayout();
  virtual void OnWindowEvent(int event);  // of a panel; does nothing here
  virtual bool QueryState();

  // Where signals and meta-calls of items arrive; the frames declare them as Qt slots.
  virtual void OnButtonClicked();
  virtual void OnPictureButtonClicked();
  virtual void OnLabelClicked();
  virtual void OnHyperlinkClicked();
  virtual void OnPictureLabelClicked();
  virtual void OnRadioButtonClicked();
  virtual void OnCheckBoxClicked();
  virtual void OnListBoxChanged();
  virtual void OnListBoxChangedAsync();
  virtual void OnListBoxItemDoubleClicked();
  virtual void OnComboBoxChanged();
  virtual void OnComboBoxEdited();
  virtual void OnComboBoxEditedAsync();
  virtual void OnSliderChanged();
  virtual void OnSliderMoved();
  virtual void OnScrollBarChanged();
  virtual void OnTextEditChanged();
  virtual void OnIntermediateTextEditChanged();
  virtual void OnNumericTextEditChanged();
  virtual void OnTextEditSelectionChanged();
  virtual void OnActiveTabPanelChanged();

  virtual RVADM_Item* GetSenderItem() = 0;  // of the slot that is running; null if it is no item
  using Handler = void (RVADM_Dialog::*)(RVADM_Item*);
  // Both ignore null. The base does it in a context of the plug-in's own: a palette's events come outside any
  // message.
  virtual void NotifyItem(RVADM_Item* item, int code);
  virtual void CallHandler(Handler handler, RVADM_Item* item);

  // The item of the meta-call that is running, or null; set and cleared by RVADM_Item::CallDialogSlot.
  RVADM_Item* currentItem = nullptr;

 protected:
  bool layoutEnabled = false;  // from the moment the items stand, but not while a layout runs
};

}  // namespace qRVADM

// The slots of both frames, for the class body, in the order of their meta-objects.
#define RVADM_DIALOG_SLOTS(base)                  \
  void OnButtonClicked() override {               \
    base::OnButtonClicked();                      \
  }                                               \
  void OnPictureButtonClicked() override {        \
    base::OnPictureButtonClicked();               \
  }                                               \
  void OnLabelClicked() override {                \
    base::OnLabelClicked();                       \
  }                                               \
  void OnHyperlinkClicked() override {            \
    base::OnHyperlinkClicked();                   \
  }                                               \
  void OnPictureLabelClicked() override {         \
    base::OnPictureLabelClicked();                \
  }                                               \
  void OnRadioButtonClicked() override {          \
    base::OnRadioButtonClicked();                 \
  }                                               \
  void OnCheckBoxClicked() override {             \
    base::OnCheckBoxClicked();                    \
  }                                               \
  void OnListBoxChanged() override {              \
    base::OnListBoxChanged();                     \
  }                                               \
  void OnListBoxChangedAsync() override {         \
    base::OnListBoxChangedAsync();                \
  }                                               \
  void OnListBoxItemDoubleClicked() override {    \
    base::OnListBoxItemDoubleClicked();           \
  }                                               \
  void OnComboBoxChanged() override {             \
    base::OnComboBoxChanged();                    \
  }                                               \
  void OnComboBoxEdited() override {              \
    base::OnComboBoxEdited();                     \
  }                                               \
  void OnComboBoxEditedAsync() override {         \
    base::OnComboBoxEditedAsync();                \
  }                                               \
  void OnSliderChanged() override {               \
    base::OnSliderChanged();                      \
  }                                               \
  void OnSliderMoved() override {                 \
    base::OnSliderMoved();                        \
  }                                               \
  void OnScrollBarChanged() override {            \
    base::OnScrollBarChanged();                   \
  }                                               \
  void OnTextEditChanged() override {             \
    base::OnTextEditChanged();                    \
  }                                               \
  void OnIntermediateTextEditChanged() override { \
    base::OnIntermediateTextEditChanged();        \
  }                                               \
  void OnNumericTextEditChanged() override {      \
    base::OnNumericTextEditChanged();             \
  }                                               \
  void OnTextEditSelectionChanged() override {    \
    base::OnTextEditSelectionChanged();           \
  }                                               \
  void OnActiveTabPanelChanged() override {       \
    base::OnActiveTabPanelChanged();              \
  }
