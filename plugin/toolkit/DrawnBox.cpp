#include "DrawnBox.h"

#include <QChildEvent>
#include <QWidget>
#include <QWindow>

#include "ADMDialogMetrics.h"
#include "NativeView.h"
#include "RVADM_Dialog.h"
#include "RVADM_ItemParent.h"

namespace qRVADM {

void SetBoxMargins(RVADM_ItemParent& box) {
  const int margin = box.GetDialog()->GetMetrics().groupMargin;
  box.SetMargins(margin, margin / 2, margin, margin);
}

void LetClicksThrough(QWidget& box) {
  box.setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TakeClicksOfChild(QWidget& box, const QChildEvent& event) {
  if (!event.added() || !event.child()->isWidgetType()) return;
  box.setAttribute(Qt::WA_TransparentForMouseEvents, false);
}

void SinkBox(QWidget& box) {
  if (!box.testAttribute(Qt::WA_TransparentForMouseEvents) || !box.testAttribute(Qt::WA_NativeWindow)) return;
  if (QWindow* window = box.windowHandle()) window->setFlag(Qt::WindowTransparentForInput);
  SendToBack(NativeViewOf(&box));
}

}  // namespace qRVADM
