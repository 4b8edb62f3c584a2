#include "LegalNoticesTextEdit.h"

#include <QTextDocument>

namespace Vandrell::Corvane {
namespace {

constexpr double kTextMargin = 2;  // pixels

}  // namespace

LegalNoticesTextEdit::LegalNoticesTextEdit(qRVADM::RVADM_ItemParent* parent, const char* shownText,
                                           bool localize)
    : RVADM_QMetaObjectProxy(parent, qRVADM::kNoticesTextEditKind) {
  setReadOnly(true);
  setFocusPolicy(Qt::ClickFocus);
  SetFontKind(0);
  SetText(shownText, localize, false);
  document()->setDocumentMargin(kTextMargin);
}

}  // namespace Vandrell::Corvane
