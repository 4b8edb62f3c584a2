// Message dialogs, and what handlers had better not do: the toolkit has to live through all of it.
#pragma once

#include <functional>
#include <vector>

#include "Section.h"

namespace qRVADM {
class RVADM_Dialog;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace gallery {

class FaultSamples : public Section {
 public:
  // `close` closes the dialog as its own button would.
  FaultSamples(qRVADM::RVADM_Dialog* owner, std::function<void()> close);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;
  // To be called at the end of the dialog's layout, which it spoils when that was asked for.
  void SpoilLayout();

 private:
  struct Sample {
    qRVADM::RVADM_TextPushButton* button;  // null once it was deleted
    void (FaultSamples::*act)();
  };

  void AddSample(const char* text, void (FaultSamples::*act)());
  void ShowMessage();
  void ShowCritical();
  void AskThreeWays();
  void Throw();
  void DeleteButton();
  void CloseTwice();
  void OpenSecond();
  void ResizeForever();
  void MakeRefusedPanel();

  qRVADM::RVADM_Dialog* const dialog;
  const std::function<void()> closeDialog;
  std::vector<Sample> samples;
  bool spoilsLayout = false;
  bool isWide = false;
};

}  // namespace gallery
