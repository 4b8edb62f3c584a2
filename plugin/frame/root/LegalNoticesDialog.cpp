#include "LegalNoticesDialog.h"

#include <fstream>
#include <string>

#include "CutPlugin.h"
#include "LegalNoticesTextEdit.h"
#include "Placement.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

constexpr int kMinimumWidth = 450;
constexpr int kMinimumHeight = 400;
constexpr char kFirstAnchor[] = "Copyright";

// Empty if it cannot be read.
std::string JoinedLines(const std::string& file) {
  std::ifstream stream(file);
  std::string text;
  for (std::string line; std::getline(stream, line);) text += line;
  return text;
}

}  // namespace

LegalNoticesDialog::LegalNoticesDialog(const CutPlugin& owner) : RVADM_ModalDialog(true), plugin(&owner) {}

LegalNoticesDialog::~LegalNoticesDialog() = default;

void LegalNoticesDialog::CreateItems() {
  RVADM_ModalDialog::CreateItems();
  textEdit = new LegalNoticesTextEdit(this, "", false);
  textEdit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  okButton = new RVADM_TextPushButton(this, TextKey("OK"));
  SetDefaultButton(okButton);
  SetMinimumWidth(kMinimumWidth);
  SetMinimumHeight(kMinimumHeight);
}

void LegalNoticesDialog::InitItems() {
  const std::string html = JoinedLines(std::string(plugin->GetResourcePath()) + "/LegalNotices.html");
  textEdit->document()->setHtml(QString::fromStdString(html));
  textEdit->scrollToAnchor(kFirstAnchor);
}

void LegalNoticesDialog::LayoutItems() {
  AlignItem(okButton, kAlignBase | kAlignBottom | kAlignRight);
  okButton->PlaceAbove(textEdit, kAlignBase, kDefaultGap);
  const int bottom = textEdit->GetBottom();
  AlignItem(textEdit, kAlignBase | kAlignTop | kAlignLeft);
  AlignItem(textEdit, kAlignBase | kStretchRight);
  textEdit->SetBottom(bottom);
}

void LegalNoticesDialog::OnItemNotify(RVADM_Item* item) {
  if (item == okButton) EndDialog(1, false);
}

// Where an anchor lies shows only now that the text has its width.
void LegalNoticesDialog::showEvent(QShowEvent* event) {
  RVADM_ModalDialog::showEvent(event);
  textEdit->scrollToAnchor(kFirstAnchor);
}

}  // namespace Vandrell::Corvane
