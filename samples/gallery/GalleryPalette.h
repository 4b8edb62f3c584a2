// The gallery in a panel of the host's.
#pragma once

#include <cstdint>
#include <memory>

#include "RVADM_NonModalDialog.h"

namespace gallery {

class GalleryContent;

// Its two states are two pages: the table of states, and everything else. The flyout menu turns pages too,
// and disables all items.
class GalleryPalette : public qRVADM::RVADM_NonModalDialog {
 public:
  GalleryPalette();
  ~GalleryPalette() override;

  void ShowWithFocus();
  void TurnPage();
  void ToggleEnabled();

  void CreateItems() override;
  void InitItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;
  void OnWindowEvent(int event) override;
  void OnFlyoutOpening() override;

 private:
  std::unique_ptr<GalleryContent> content;
  std::uint32_t enabledEntry = 0;  // of the flyout menu
  bool showsTable = true;
  bool fitsPage = true;  // the next layout gives the panel the size of the page
};

}  // namespace gallery
