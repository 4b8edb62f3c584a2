#include "GalleryPalette.h"

#include <QTimer>

#include "GalleryContent.h"
#include "IconIds.h"
#include "RVADM_Item.h"
#include "RVADM_Menu.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

class Entry : public RVADM_MenuHandler {
 public:
  using Act = void (GalleryPalette::*)();
  Entry(GalleryPalette& owner, Act action) : palette(owner), act(action) {}

  void OnSelected(std::uint32_t /*id*/) override { (palette.*act)(); }

 private:
  GalleryPalette& palette;
  const Act act;
};

}  // namespace

GalleryPalette::GalleryPalette() {
  Create(TextKey("Gallery Palette"), kResizablePanel, true, kPanelIcon);
}

GalleryPalette::~GalleryPalette() = default;

void GalleryPalette::CreateItems() {
  RVADM_NonModalDialog::CreateItems();
  const auto entry = [this](const char* text, Entry::Act act) {
    return GetMenu()->AddItem(text, true, std::make_unique<Entry>(*this, act));
  };
  entry(TextKey("Other Page"), &GalleryPalette::TurnPage);
  GetMenu()->AddSeparator();
  enabledEntry = entry(TextKey("Items Enabled"), &GalleryPalette::ToggleEnabled);
  content = std::make_unique<GalleryContent>(this, [this] { Show(false); });
}

void GalleryPalette::InitItems() {
  content->InitItems();
}

void GalleryPalette::LayoutItems() {
  content->LayoutPage(showsTable);
  if (fitsPage) {
    fitsPage = false;
    content->GetWidest()->FitDialogToItem(kStretchRight);
    content->GetLowest()->FitDialogToItem(kStretchBottom);
  }
  content->EndLayout();
}

void GalleryPalette::OnItemNotify(RVADM_Item* item) {
  content->OnItemNotify(item);
}

void GalleryPalette::OnWindowEvent(int event) {
  if (event == kPanelStateChanged) TurnPage();
  RVADM_NonModalDialog::OnWindowEvent(event);
}

void GalleryPalette::OnFlyoutOpening() {
  GetMenu()->SetItemChecked(enabledEntry, isEnabled());
}

// The keyboard comes once the panel can be seen.
void GalleryPalette::ShowWithFocus() {
  Show(true);
  QTimer::singleShot(0, this, [this] {
    activateWindow();
    content->TakeFocus();
  });
}

void GalleryPalette::TurnPage() {
  showsTable = !showsTable;
  fitsPage = true;
  Relayout();
}

void GalleryPalette::ToggleEnabled() {
  SetEnabled(!isEnabled());
}

}  // namespace gallery
