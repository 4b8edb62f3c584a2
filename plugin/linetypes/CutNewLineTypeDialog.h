// Makes a custom line type, or edits one: its name and its colour.
#pragma once

#include <functional>
#include <string>

#include "AIColor.h"
#include "RVADM_ModalDialog.h"

namespace qRVADM {
class RVADM_Label;
class RVADM_RGBColorPatch;
class RVADM_TextEdit;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace ai {
class UnicodeString;
}

namespace Vandrell::Corvane {

struct LineType;

class CutNewLineTypeDialog final : public qRVADM::RVADM_ModalDialog {
 public:
  // Runs the dialog and returns when it has closed. A record without a name asks for a new line type. OK
  // makes the record an RGB spot colour definition; whatever else closes the dialog leaves it alone.
  // `nameExists` tells, by UTF-8 name, whether another line type has the name; it is asked about changed
  // names only and must not be empty.
  CutNewLineTypeDialog(LineType* lineType, std::function<bool(const std::string&)> nameExists);

 protected:
  void CreateItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  AIRGBColor FirstColor() const;
  void LayoutButtons();
  void Accept();
  bool IsGoodName(const ai::UnicodeString& name) const;  // tells the user if not
  void WriteRecord(const ai::UnicodeString& name);

  qRVADM::RVADM_Label* nameLabel = nullptr;
  qRVADM::RVADM_TextEdit* nameEdit = nullptr;
  qRVADM::RVADM_Label* colorLabel = nullptr;
  qRVADM::RVADM_RGBColorPatch* colorPatch = nullptr;
  qRVADM::RVADM_Label* hintLabel = nullptr;
  qRVADM::RVADM_TextPushButton* okButton = nullptr;
  qRVADM::RVADM_TextPushButton* cancelButton = nullptr;
  LineType* lineType;  // the caller's
  std::function<bool(const std::string&)> nameExists;
};

}  // namespace Vandrell::Corvane
