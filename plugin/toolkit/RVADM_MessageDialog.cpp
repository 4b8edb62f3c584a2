#include "RVADM_MessageDialog.h"

#include <QVariant>

#include "FontKinds.h"
#include "QtManager.h"
#include "RVADM_Label.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_TextPushButton.h"
#include "UserInteraction.h"

namespace qRVADM {
namespace {

constexpr int kMessageIcon = 16101;

// Pixels. The icon stands in the middle of a column of its own.
constexpr int kWidth = 494;
constexpr int kLeastHeight = 130;
constexpr int kMargin = 15;
constexpr int kIconColumn = 38;
constexpr int kTextLeft = 70;
constexpr int kHeadingGap = 3;
constexpr int kButtonGap = 15;

std::string TextOf(const char* text) {
  return text == nullptr ? std::string() : text;
}

}  // namespace

RVADM_MessageDialog::RVADM_MessageDialog() : RVADM_ModalDialog(false) {}

RVADM_MessageDialog::RVADM_MessageDialog(const char* heading, bool translateHeading, const char* body,
                                         bool translateBody, const char* firstButton,
                                         const char* secondButton, bool firstIsDefault)
    : RVADM_MessageDialog() {
  Ask(heading, translateHeading, body, translateBody, firstButton, secondButton, firstIsDefault);
}

void RVADM_MessageDialog::Ask(const char* heading, bool translateHeading, const char* body,
                              bool translateBody, const char* firstButton, const char* secondButton,
                              bool firstIsDefault) {
  if (firstButton != nullptr) buttonTexts[0] = firstButton;
  if (secondButton != nullptr) buttonTexts[1] = secondButton;
  headingText = TextOf(heading);
  bodyText = TextOf(body);
  localizeHeading = translateHeading;
  localizeBody = translateBody;
  if (bodyText.empty()) {
    bodyText.swap(headingText);
    localizeBody = translateHeading;
    localizeHeading = false;
  }
  defaultButton = firstIsDefault ? 0 : 1;
  cancelButton = secondButton != nullptr ? 1 : 0;
  result = cancelButton;
  if (IsUserInteractionAllowed()) Run("", true);
}

int RVADM_MessageDialog::GetIconId() {
  return kMessageIcon;
}

void RVADM_MessageDialog::CreateItems() {
  for (int index = static_cast<int>(kButtons) - 1; index >= 0; --index) CreateButton(index);
  const bool hasHeading = !headingText.empty();
  if (hasHeading) {
    headingLabel = new RVADM_Label(this, headingText.c_str(), localizeHeading);
    headingLabel->SetFontKind(kHeadingFont);
  }
  bodyLabel = new RVADM_Label(this, bodyText.c_str(), localizeBody);
  bodyLabel->SetFontKind(hasHeading ? kPaletteFont : kDialogFont);
  if (bodyText.find("href=") != std::string::npos) bodyLabel->setOpenExternalLinks(true);
  iconLabel = new RVADM_PictureLabel(this, GetIconId());
}

void RVADM_MessageDialog::CreateButton(int index) {
  const auto at = static_cast<std::size_t>(index);
  if (buttonTexts[at].empty()) return;
  auto* const button = new RVADM_TextPushButton(this, buttonTexts[at].c_str());
  buttonItems[at] = button;
  button->setProperty(RVADMQtManager::kIsModalButtonProperty, true);
  if (index == defaultButton) {
    SetDefaultButton(button);
    button->SetFocus(true);
  }
  if (index == cancelButton) SetCancelButton(button);
  if (!buttonTips[at].empty()) button->SetTip(buttonTips[at].c_str(), true, false);
}

void RVADM_MessageDialog::LayoutItems() {
  SetSize(kWidth, kLeastHeight);
  SetMargins(kMargin);
  iconLabel->MoveTo((kIconColumn - iconLabel->GetWidth()) / 2 + kMargin, kMargin, false);
  LayoutTexts();
  LayoutButtons();
  CenterOnScreen();
}

void RVADM_MessageDialog::LayoutTexts() {
  RVADM_Label* const first = headingLabel != nullptr ? headingLabel : bodyLabel;
  first->MoveTo(kTextLeft, kMargin, false);
  AlignItem(first, kAlignBase | kStretchRight);
  const int width = first->GetWidth();
  if (headingLabel != nullptr) {
    headingLabel->SetWrappedWidth(width, true);
    headingLabel->PlaceBelow(bodyLabel, kAlignBase | kAlignLeft, kHeadingGap);
  }
  bodyLabel->SetWrappedWidth(width, true);
  if (bodyLabel->GetBottom() < iconLabel->GetBottom()) bodyLabel->SetBottom(iconLabel->GetBottom());
}

void RVADM_MessageDialog::LayoutButtons() {
  RVADM_Item* leftmost = nullptr;  // of those that stand at the right
  for (RVADM_TextPushButton* const button : buttonItems) {
    if (button == nullptr) continue;
    if (leftmost == nullptr) {
      bodyLabel->PlaceBelow(button, kAlignBase, kButtonGap);
      AlignItem(button, kAlignBase | kAlignRight);
      button->FitParentToItem(kAlignBase | kStretchBottom);
    } else {
      leftmost->PlaceLeftOf(button, kAlignBase | kCenterV, kDefaultGap);
    }
    leftmost = button;
  }
  if (buttonItems[2] != nullptr) buttonItems[2]->AlignWith(bodyLabel, kAlignBase | kAlignLeft);
}

void RVADM_MessageDialog::OnItemNotify(RVADM_Item* item) {
  for (std::size_t i = 0; i < kButtons; ++i) {
    if (buttonItems[i] == nullptr || buttonItems[i] != item) continue;
    result = static_cast<int>(i);
    EndDialog(result, true);
    return;
  }
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_MessageDialog.cpp"
