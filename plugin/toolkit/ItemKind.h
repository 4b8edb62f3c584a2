// What an item is, by number: gaps between items go by the kinds of the two.
#pragma once

namespace qRVADM {

enum ItemKind : int {
  kFrameKind = 1,  // groups too
  kListBoxKind = 4,
  kPicturePushButtonKind = 7,
  kPictureLabelKind = 9,
  kDropDownListKind = 17,
  kSliderKind = 18,
  kCheckBoxKind = 22,  // no item has it
  kTextEditKind = 23,  // numeric edits too
  kReadOnlyTextEditKind = 24,
  kNoticesTextEditKind = 26,
  kTextPushButtonKind = 29,
  kRadioKind = 30,
  kLabelKind = 31,
  kCustomItemKind = 35,  // the button box of a modal dialog too
  kOtherEditKind = 36,   // no item has it
};

}  // namespace qRVADM
