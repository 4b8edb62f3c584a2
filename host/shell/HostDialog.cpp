#include "HostDialog.h"

#include <QDialog>

#include "QtManager.h"

namespace host {

using RVADMQtManager::QtManager;

HostDialog::HostDialog(QDialog* dialog) : dialog_(dialog) {
  QtManager::IncreaseDialogCount();
}

HostDialog::~HostDialog() {
  delete dialog_;
  QtManager::DecreaseDialogCount();
}

QWidget* HostDialog::parent() {
  return QtManager::GetModalDialogParent(nullptr, true);
}

bool HostDialog::accepted() {
  QtManager::MakeDVAStyleAware(dialog_, true);
  return dialog_->exec() == QDialog::Accepted && dialog_ != nullptr;
}

}  // namespace host
