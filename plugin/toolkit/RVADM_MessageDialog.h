// Something to say, with up to three answers.
#pragma once

#include <array>
#include <string>

#include "RVADM_ModalDialog.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

class RVADM_Label;
class RVADM_PictureLabel;
class RVADM_TextPushButton;

// An icon, a heading in bold if there is one, a text, and the buttons: the first at the right, the second to
// its left, the third at the left edge of the text.
class RVADM_MessageDialog : public RVADM_ModalDialog {
  Q_OBJECT

 public:
  // Shows the dialog and returns when the user has answered. While the user must not be asked nothing
  // appears, and the answer is the cancel button. Texts are UTF-8; without a body the heading is shown as
  // one. Links open elsewhere if "href=" stands in the body as it is passed. Buttons are always translated,
  // and one without a text (null) is not there; the second is the cancel button, or the first if it is alone.
  RVADM_MessageDialog(const char* heading, bool translateHeading, const char* body, bool translateBody,
                      const char* firstButton, const char* secondButton, bool firstIsDefault);

  int GetResult() const { return result; }  // index of the button that was the answer

 protected:
  RVADM_MessageDialog();  // a class on this one calls Ask from its own constructor
  void Ask(const char* heading, bool translateHeading, const char* body, bool translateBody,
           const char* firstButton, const char* secondButton, bool firstIsDefault);

  virtual int GetIconId();
  void CreateItems() override;
  void LayoutItems() override;
  void OnItemNotify(RVADM_Item* item) override;

  static constexpr std::size_t kButtons = 3;
  std::array<RVADM_TextPushButton*, kButtons> buttonItems{};  // null where there is none
  RVADM_Label* headingLabel = nullptr;                        // null without a heading
  RVADM_Label* bodyLabel = nullptr;
  RVADM_PictureLabel* iconLabel = nullptr;
  std::array<std::string, kButtons> buttonTexts;
  std::array<std::string, kButtons> buttonTips;
  std::string headingText;
  std::string bodyText;
  bool localizeHeading = false;
  bool localizeBody = false;
  int defaultButton = 0;
  int cancelButton = 0;
  int result = 0;

 private:
  void CreateButton(int index);
  void LayoutTexts();
  void LayoutButtons();
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
