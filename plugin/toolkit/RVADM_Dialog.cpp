#include "RVADM_Dialog.h"

#include "ADMDialogMetrics.h"
#include "AppContext.h"
#include "FlagOfObject.h"
#include "RVADM_Item.h"

namespace qRVADM {

void RVADM_Dialog::ParentToLocalRect(ADMRect* rect) {
  ScreenToLocalRect(rect);
}

void RVADM_Dialog::LocalToParentRect(ADMRect* rect) {
  LocalToScreenRect(rect);
}

void RVADM_Dialog::CreateItems() {}
void RVADM_Dialog::InitItems() {}
void RVADM_Dialog::OnCommit(int) {}
void RVADM_Dialog::LayoutItems() {}
void RVADM_Dialog::OnItemNotify(RVADM_Item*) {}
void RVADM_Dialog::OnItemNotifyAsync(RVADM_Item*) {}
void RVADM_Dialog::OnUIThemeChanged(QEvent*) {}
void RVADM_Dialog::SpareHook() {}
void RVADM_Dialog::CenterOnScreen() {}
void RVADM_Dialog::OnWindowEvent(int) {}

bool RVADM_Dialog::QueryState() {
  return true;
}

void RVADM_Dialog::Init() {
  constexpr int kFirstSize = 100;
  const ADMDialogMetrics& metrics = GetMetrics();
  SetMargins(metrics.outerMargin, metrics.outerTopMargin, metrics.outerMargin, metrics.outerMargin);
  SetSize(kFirstSize, kFirstSize);
  CreateItems();
  layoutEnabled = true;
  InitItems();
  Relayout();
}

void RVADM_Dialog::Relayout() {
  if (!layoutEnabled) return;
  const FlagOfObject layout(GetObject(), layoutEnabled, false);
  LayoutItems();
}

void RVADM_Dialog::NotifyItem(RVADM_Item* item, int code) {
  if (item == nullptr) return;
  const AppContext context;
  item->Notify(code);
}

void RVADM_Dialog::CallHandler(Handler handler, RVADM_Item* item) {
  if (handler == nullptr || item == nullptr) return;
  const AppContext context;
  (this->*handler)(item);
}

}  // namespace qRVADM
