// Margins and gaps of a kind of frame, in pixels.
#pragma once

namespace qRVADM {

struct ADMDialogMetrics {
  int outerMargin;     // left, right and bottom of a dialog
  int outerTopMargin;  // top of a dialog
  int itemGap;
  int labelGap;         // behind a label
  int buttonRowGap;     // between two text push buttons, one below the other
  int buttonColumnGap;  // between two text push buttons side by side
  int choiceRowGap;     // between two radios, one below the other
  int editRowGap;       // between two text fields, one below the other
  int groupTopMargin;   // under a group's title
  int groupMargin;      // inside a group or frame on its other sides
};

const ADMDialogMetrics& ModalDialogMetrics();
const ADMDialogMetrics& NonModalDialogMetrics();

// Between two items of these kinds, `first` above or to the left of `second`.
int VerticalGap(const ADMDialogMetrics& metrics, int first, int second);
int HorizontalGap(const ADMDialogMetrics& metrics, int first, int second);

}  // namespace qRVADM
