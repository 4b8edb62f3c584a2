#include "QtManager.h"

namespace RVADMQtManager {
namespace {

const SPBasicSuite* basicSuite = nullptr;
int openDialogs = 0;

}  // namespace

void QtManager::SetSPBasicSuite(const SPBasicSuite* basic) {
  basicSuite = basic;
}

void QtManager::IncreaseDialogCount() {
  ++openDialogs;
}

void QtManager::DecreaseDialogCount() {
  if (openDialogs > 0) --openDialogs;
}

int QtManager::DialogCount() {
  return openDialogs;
}

}  // namespace RVADMQtManager
