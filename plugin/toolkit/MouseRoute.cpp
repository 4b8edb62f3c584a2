#include "MouseRoute.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include "AppContext.h"
#include "RVADM_Item.h"

namespace qRVADM {
namespace {

// Qt's modifiers stand 20 bits above those of trackers.
constexpr int kModifierShift = 20;
constexpr std::uint32_t kModifierMask = kShiftDown | kControlDown | kAltDown | kMetaDown;
static_assert(Qt::ShiftModifier >> kModifierShift == kShiftDown);
static_assert(Qt::MetaModifier >> kModifierShift == kMetaDown);

int UpAction(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return kLeftUpAction;
  if (button == Qt::RightButton) return kRightUpAction;
  return kMiddleUpAction;
}

}  // namespace

std::uint32_t KeyModifiers(Qt::KeyboardModifiers modifiers) {
  return static_cast<std::uint32_t>(modifiers) >> kModifierShift & kModifierMask;
}

std::uint32_t ButtonModifiers(Qt::MouseButtons buttons) {
  std::uint32_t bits = 0;
  if (buttons.testFlag(Qt::LeftButton)) bits |= kLeftButtonDown;
  if (buttons.testFlag(Qt::MiddleButton)) bits |= kMiddleButtonDown;
  if (buttons.testFlag(Qt::RightButton)) bits |= kRightButtonDown;
  return bits;
}

ADMTracker TrackerOf(const QMouseEvent& event, int action) {
  ADMTracker tracker;
  tracker.action = action;
  tracker.modifiers = KeyModifiers(event.modifiers());
  tracker.x = event.x();
  tracker.y = event.y();
  return tracker;
}

bool TrackInContext(RVADM_Item& item, const ADMTracker& tracker) {
  const QPointer<QWidget> widget(item.GetWidget());
  const AppContext context;
  return item.Track(tracker) && !widget.isNull();
}

bool TrackPress(RVADM_Item& item, const QMouseEvent& event) {
  return TrackInContext(item, TrackerOf(event, kLeftDownAction));
}

bool TrackRelease(RVADM_Item& item, const QMouseEvent& event) {
  return TrackInContext(item, TrackerOf(event, UpAction(event.button())));
}

bool TrackMove(RVADM_Item& item, const QMouseEvent& event) {
  ADMTracker tracker = TrackerOf(event, kDragAction);
  tracker.modifiers = ButtonModifiers(event.buttons());
  return TrackInContext(item, tracker);
}

}  // namespace qRVADM
