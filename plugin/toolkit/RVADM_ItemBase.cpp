#include "RVADM_ItemBase.h"

#include <QWidget>

namespace qRVADM::internal {

QObject* RVADM_ItemBase::GetObject() {
  return GetWidget();
}

}  // namespace qRVADM::internal
