// "brevia Register Marks": what the marks look like and where they go.
#pragma once

#include <cstdint>

#include "AIColor.h"
#include "RVADM_ModalDialog.h"

class RVADM_FillStrokeItem;

namespace qRVADM {
class RVADM_DropDownList;
class RVADM_Group;
class RVADM_Label;
class RVADM_NumericEdit;
class RVADM_PictureLabel;
class RVADM_PicturePushButton;
class RVADM_Radio;
class RVADM_Slider;
class RVADM_ModalDialogButtons;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace Vandrell::Corvane {

class CutOption;

// Run ends with kAccepted or kCancelled. The paints start anew each time: a round mark is a black disc
// without a stroke, a cross has black bars. Shape, paints and weight follow one another: what the disc is
// filled with the bars are painted with, and there is a weight exactly where there is a stroke.
class CutOptionDialog : public qRVADM::RVADM_ModalDialog {
 public:
  static constexpr int kCancelled = 0;
  static constexpr int kAccepted = 1;

  // `option` must outlive the dialog. It is read when the dialog opens and written when it is accepted.
  explicit CutOptionDialog(CutOption* option);
  ~CutOptionDialog() override;

  void CreateItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;
  void LayoutItems() override;
  void InitItems() override;
  void OnCommit(int result) override;

 private:
  // The pictures of the two shapes.
  static constexpr int kRoundPicture = 16201;
  static constexpr int kCrossPicture = 16203;

  void CreateAppearance();
  void CreateAction();
  void CreateButtons();
  void NameItems();
  qRVADM::RVADM_NumericEdit* MakeLengthEdit(double minimum);
  void InitColors();
  void InitAction();

  void LayoutAppearance();
  void AlignLabels();
  void LayoutAction();

  std::uint32_t ChosenShape();
  bool HasStroke() const;
  bool HasWeight() const;
  void ShowShape(std::uint32_t shape);
  void EnableCount();
  void OnShapeChanged();
  void OnStrokeChanged();
  void OnWeightChanged();
  void TakeActivePaintAway();
  void SwapPaints();

  CutOption* option;        // not owned
  std::uint32_t lastShape;  // shown before the last change
  AIColor lastStrokeColor;  // for when the stroke gets a weight again

  // All items belong to the dialog's widget.
  qRVADM::RVADM_Group* appearanceGroup = nullptr;
  qRVADM::RVADM_Label* shapeLabel = nullptr;
  qRVADM::RVADM_DropDownList* shapeList = nullptr;
  qRVADM::RVADM_PictureLabel* preview = nullptr;
  qRVADM::RVADM_Label* sizeLabel = nullptr;
  qRVADM::RVADM_NumericEdit* sizeEdit = nullptr;
  qRVADM::RVADM_Label* strokeLabel = nullptr;
  qRVADM::RVADM_NumericEdit* strokeEdit = nullptr;
  qRVADM::RVADM_Label* colorLabel = nullptr;
  RVADM_FillStrokeItem* colorItem = nullptr;
  qRVADM::RVADM_PicturePushButton* noneButton = nullptr;
  qRVADM::RVADM_Group* actionGroup = nullptr;
  qRVADM::RVADM_Label* addLabel = nullptr;
  qRVADM::RVADM_Radio* manualRadio = nullptr;
  qRVADM::RVADM_Radio* cornerRadio = nullptr;
  qRVADM::RVADM_Radio* autoRadio = nullptr;
  qRVADM::RVADM_Slider* countSlider = nullptr;
  qRVADM::RVADM_Label* fewLabel = nullptr;
  qRVADM::RVADM_Label* manyLabel = nullptr;
  qRVADM::RVADM_TextPushButton* okButton = nullptr;
  qRVADM::RVADM_TextPushButton* cancelButton = nullptr;
  qRVADM::RVADM_ModalDialogButtons* buttonRow = nullptr;
};

}  // namespace Vandrell::Corvane
