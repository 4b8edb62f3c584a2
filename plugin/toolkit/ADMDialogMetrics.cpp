#include "ADMDialogMetrics.h"

#include "ItemKind.h"

namespace qRVADM {
namespace {

bool IsEdit(int kind) {
  return kind == kTextEditKind || kind == kOtherEditKind;
}

}  // namespace

const ADMDialogMetrics& ModalDialogMetrics() {
  static constexpr ADMDialogMetrics metrics{12, 12, 7, 4, 7, 7, 5, 7, 21, 11};
  return metrics;
}

const ADMDialogMetrics& NonModalDialogMetrics() {
  static constexpr ADMDialogMetrics metrics{4, 4, 4, 4, 4, 6, 4, 4, 9, 6};
  return metrics;
}

int VerticalGap(const ADMDialogMetrics& metrics, int first, int second) {
  if (first == kTextPushButtonKind && second == kTextPushButtonKind) return metrics.buttonRowGap;
  if (first == second && (first == kCheckBoxKind || first == kRadioKind)) return metrics.choiceRowGap;
  if (IsEdit(first) && IsEdit(second)) return metrics.editRowGap;
  return metrics.itemGap;
}

int HorizontalGap(const ADMDialogMetrics& metrics, int first, int second) {
  if (first == kLabelKind) return metrics.labelGap;
  if (first == kTextPushButtonKind && second == kTextPushButtonKind) return metrics.buttonColumnGap;
  return metrics.itemGap;
}

}  // namespace qRVADM
