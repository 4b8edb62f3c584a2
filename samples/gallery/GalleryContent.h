// What both frames of the gallery show.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qRVADM {
class RVADM_Dialog;
class RVADM_Item;
class RVADM_Label;
}  // namespace qRVADM

namespace gallery {

class FaultSamples;
class LineSamples;
class Section;
class StateTable;

class GalleryContent {
 public:
  // Makes the items. `close` closes the dialog as its own button would.
  GalleryContent(qRVADM::RVADM_Dialog* owner, std::function<void()> close);
  GalleryContent(const GalleryContent&) = delete;
  GalleryContent& operator=(const GalleryContent&) = delete;
  ~GalleryContent();

  void InitItems();
  void TakeFocus();  // into the table of states
  // From the upper left corner of the dialog's content. All of it side by side, or one page: the table of
  // states, or everything else.
  void LayoutAll();
  void LayoutPage(bool table);
  // To be called last in the dialog's layout.
  void EndLayout();
  // The dialog may be gone afterwards.
  void OnItemNotify(qRVADM::RVADM_Item* item);

  qRVADM::RVADM_Item* GetLowest() const;  // what stands at the bottom,
  qRVADM::RVADM_Item* GetWidest() const;  // and what reaches farthest to the right

 private:
  void Stack(int left, int top, const std::vector<Section*>& stacked);
  void LayoutNotice();

  qRVADM::RVADM_Dialog* const dialog;
  std::vector<std::unique_ptr<Section>> sections;
  StateTable* table;  // these three are sections too
  LineSamples* lines;
  FaultSamples* faults;
  std::vector<Section*> shown;
  qRVADM::RVADM_Label* notice;
};

}  // namespace gallery
