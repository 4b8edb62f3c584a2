#include "TextSamples.h"

#include "FontKinds.h"
#include "RVADM_Label.h"
#include "TextKey.h"

namespace gallery {

using qRVADM::RVADM_Label;

namespace {

constexpr int kWrappedWidth = 260;

}  // namespace

TextSamples::TextSamples(qRVADM::RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Labels")),
      shortText(Make<RVADM_Label>(TextKey("Short"), true)),
      longText(Make<RVADM_Label>(TextKey("A label as long as its text is, in one line"), true)),
      wrappedText(Make<RVADM_Label>(
          TextKey(
              "A label that breaks into lines: the knife runs along the outline of the print, and what lies "
              "outside of it falls away."),
          true)),
      heading(Make<RVADM_Label>(TextKey("A heading"), true)),
      fixedWidth(Make<RVADM_Label>("0123456789 mm", false)) {
  heading->SetFontKind(qRVADM::kHeadingFont);
  fixedWidth->SetFontKind(qRVADM::kFixedFont);
}

void TextSamples::LayoutItems() {
  wrappedText->SetWrappedWidth(kWrappedWidth, true);
  Stack({heading, shortText, longText, wrappedText, fixedWidth});
}

bool TextSamples::OnItemNotify(qRVADM::RVADM_Item* /*item*/) {
  return false;
}

}  // namespace gallery
