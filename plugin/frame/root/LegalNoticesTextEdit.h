// A view of formatted text that scrolls.
#pragma once

#include <QTextEdit>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace Vandrell::Corvane {

// Read-only; a click gives it the keyboard, and its text can be selected.
class LegalNoticesTextEdit : public qRVADM::RVADM_QMetaObjectProxy<qRVADM::RVADM_Item, QTextEdit> {
 public:
  LegalNoticesTextEdit(qRVADM::RVADM_ItemParent* parent, const char* shownText, bool localize);
};

}  // namespace Vandrell::Corvane
