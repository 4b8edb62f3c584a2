// A dialog that runs on top of the host's window until it is answered.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QSize>

#include "RVADM_Dialog.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

// Made on the stack of whoever asks, run once, and gone with that stack; the items can be read until then.
class RVADM_ModalDialog : public QDialog, public RVADM_Dialog {
  Q_OBJECT

 public:
  explicit RVADM_ModalDialog(bool resizable);
  ~RVADM_ModalDialog() override;

  // Makes the items, shows the dialog and returns the result that it ended with: that of EndDialog, or 0.
  // -1, and nothing is made, while the user must not be asked.
  int Run(const char* title, bool localize);
  // Unless `skipCommit`, OnCommit(result) comes first.
  void EndDialog(int result, bool skipCommit);
  void SetDefaultButton(RVADM_Item* item);  // Return; null does nothing
  void SetCancelButton(RVADM_Item* item);   // Escape and the close box
  void SetMinimumWidth(int width);
  void SetMinimumHeight(int height);

  QWidget* GetWidget() override { return this; }
  void GetLocalRect(ADMRect* rect) override;
  void SetLocalRect(const ADMRect& rect) override;
  void SetTitle(const char* title, bool localize) override;
  void GetTitle(char* buffer, int size) override;
  void CenterOnScreen() override;  // on the parent's frame, else on the screen
  void SetSize(int width, int height) override;
  const ADMDialogMetrics& GetMetrics() override;
  void GetBoundsRect(ADMRect* bounds) override;  // with the frame, on the screen
  void Update() override;
  bool IsResizable() override;
  // Nothing if the size is that of the last layout. A layout that changes the size gets one more from the
  // event loop; one that never comes to rest is left alone after a while.
  void Relayout() override;
  RVADM_Item* GetSenderItem() override;
  // Without a context: a modal dialog runs within the message that opened it.
  void NotifyItem(RVADM_Item* item, int code) override;
  void CallHandler(Handler handler, RVADM_Item* item) override;

 public Q_SLOTS:
  void reject() override;
  RVADM_DIALOG_SLOTS(RVADM_Dialog)

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool ComesToRest();
  void RelayoutLater();

  RVADM_Item* cancelItem = nullptr;
  QPointer<QWidget> cancelWidget;  // null when the item is gone
  QSize lastSize{-1, -1};          // of the last layout
  QSize sizeOfLayout{-1, -1};      // that a layout last asked for
  int layoutsInARow = 0;           // that a layout brought about itself
  bool ended = false;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
