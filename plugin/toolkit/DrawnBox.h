// What frames and groups share: they are drawn around siblings, and hold none of them as children.
#pragma once

class QChildEvent;
class QWidget;

namespace qRVADM {

class RVADM_ItemParent;

// Margins of the metrics of the box's dialog; half as much at the top.
void SetBoxMargins(RVADM_ItemParent& box);

// Clicks pass through the box to what lies under it, until a widget becomes its child.
void LetClicksThrough(QWidget& box);
void TakeClicksOfChild(QWidget& box, const QChildEvent& event);
// To be called when the box is shown: one with a window of its own goes behind its siblings.
void SinkBox(QWidget& box);

}  // namespace qRVADM
