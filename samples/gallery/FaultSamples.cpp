#include "FaultSamples.h"

#include <algorithm>
#include <stdexcept>

#include "ADMDialogMetrics.h"
#include "RVADM_CriticalMessageDialog.h"
#include "RVADM_Dialog.h"
#include "RVADM_TextPushButton.h"
#include "RefusedPalette.h"
#include "SecondDialog.h"
#include "TextKey.h"
#include "ThreeAnswers.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kPerRow = 3;
constexpr int kShift = 24;  // pixels that a spoilt layout adds and takes away

constexpr const char* kLongMessage = TextKey(
    "The knife of the cutting table is blunt. Have it changed before the next sheet is laid on: cuts "
    "through the backing, torn edges and lost register marks are what comes of going on with it.");

}  // namespace

FaultSamples::FaultSamples(RVADM_Dialog* owner, std::function<void()> close)
    : Section(owner, TextKey("Messages and Faults")), dialog(owner), closeDialog(std::move(close)) {
  AddSample(TextKey("Message..."), &FaultSamples::ShowMessage);
  AddSample(TextKey("Critical Message..."), &FaultSamples::ShowCritical);
  AddSample(TextKey("Three Answers..."), &FaultSamples::AskThreeWays);
  AddSample(TextKey("Second Dialog..."), &FaultSamples::OpenSecond);
  AddSample(TextKey("Throw"), &FaultSamples::Throw);
  AddSample(TextKey("Delete This Button"), &FaultSamples::DeleteButton);
  AddSample(TextKey("Close Twice"), &FaultSamples::CloseTwice);
  AddSample(TextKey("Resize Forever"), &FaultSamples::ResizeForever);
  AddSample(TextKey("Refused Panel"), &FaultSamples::MakeRefusedPanel);
}

void FaultSamples::AddSample(const char* text, void (FaultSamples::*act)()) {
  samples.push_back({Make<RVADM_TextPushButton>(text), act});
}

// In columns of one width.
void FaultSamples::LayoutItems() {
  int width = 0;
  for (const Sample& sample : samples) {
    if (sample.button != nullptr) width = std::max(width, sample.button->GetWidth());
  }
  const ADMRect inner = GetInnerRect();
  const ADMDialogMetrics& metrics = dialog->GetMetrics();
  int place = 0;
  for (const Sample& sample : samples) {
    const int column = place % kPerRow;
    const int row = place++ / kPerRow;
    if (sample.button == nullptr) continue;
    sample.button->SetWidth(width);
    sample.button->MoveTo(inner.left + column * (width + metrics.buttonColumnGap),
                          inner.top + row * (sample.button->GetHeight() + metrics.buttonRowGap), false);
  }
  FitGroup();
}

bool FaultSamples::OnItemNotify(RVADM_Item* item) {
  const auto found = std::find_if(samples.begin(), samples.end(),
                                  [&](const Sample& sample) { return sample.button == item; });
  if (item == nullptr || found == samples.end()) return false;
  (this->*found->act)();
  return true;
}

void FaultSamples::SpoilLayout() {
  if (!spoilsLayout) return;
  ADMRect local{};
  dialog->GetLocalRect(&local);
  isWide = !isWide;
  dialog->SetSize(Width(local) + (isWide ? kShift : -kShift), Height(local));
}

void FaultSamples::ShowMessage() {
  const RVADM_MessageDialog message(
      TextKey("The sheet has been cut"), true,
      TextKey("How to lay on the next one is told <a href=\"https://example.org\">here</a>."), true,
      TextKey("OK"), nullptr, true);
}

void FaultSamples::ShowCritical() {
  const RVADM_CriticalMessageDialog message("", true, kLongMessage, true, nullptr, TextKey("OK"), true);
}

void FaultSamples::AskThreeWays() {
  const ThreeAnswers question;
}

void FaultSamples::Throw() {
  throw std::runtime_error("thrown by the gallery");
}

void FaultSamples::DeleteButton() {
  const auto own = std::find_if(samples.begin(), samples.end(), [](const Sample& sample) {
    return sample.act == &FaultSamples::DeleteButton;
  });
  Delete(own->button);
  own->button = nullptr;
}

// The dialog may be gone after the first time, and with it what is closed.
void FaultSamples::CloseTwice() {
  const std::function<void()> close = closeDialog;
  close();
  close();
}

void FaultSamples::OpenSecond() {
  SecondDialog second;
  second.Run(TextKey("Second Dialog"), true);
}

void FaultSamples::ResizeForever() {
  spoilsLayout = !spoilsLayout;
  if (!spoilsLayout) return;
  ADMRect local{};
  dialog->GetLocalRect(&local);
  dialog->SetSize(Width(local) + 1, Height(local));
}

void FaultSamples::MakeRefusedPanel() {
  RefusedPalette palette;
  palette.Show(true);
}

}  // namespace gallery
