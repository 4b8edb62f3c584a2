// Bounds of items, and how items are placed by one another.
#include <QWidget>

#include "ADMDialogMetrics.h"
#include "RVADM_Dialog.h"
#include "RVADM_Item.h"

namespace qRVADM {
namespace {

ADMRect BoundsOf(RVADM_Item& item) {
  ADMRect bounds;
  item.GetBounds(&bounds);
  return bounds;
}

void FitToItem(RVADM_ItemParent& container, RVADM_Item& item, int flags) {
  ADMRect content;
  container.GetContentRect(&content);
  container.SetContentRect(Placed(content, BoundsOf(item), flags));
}

// Before `moved` goes to a side of `reference`.
void AlignUnlessNone(RVADM_Item& moved, RVADM_Item& reference, int flags) {
  if (flags != kAlignBase) moved.AlignWith(&reference, flags);
}

}  // namespace

void RVADM_Item::GetBounds(ADMRect* bounds) {
  *bounds = ToADMRect(widget->geometry());
}

void RVADM_Item::SetBounds(const ADMRect& bounds) {
  widget->setGeometry(ToQRect(bounds));
  Notify(kBoundsChanged);
}

void RVADM_Item::GetBestSize(QSize* size) {
  *size = widget->sizeHint();
}

void RVADM_Item::FitToBestSize() {
  QSize best;
  GetBestSize(&best);
  SetSize(best.width(), best.height());
}

void RVADM_Item::AlignToRect(const ADMRect& target, int flags) {
  SetBounds(Placed(BoundsOf(*this), target, flags));
}

void RVADM_Item::AlignWith(RVADM_Item* reference, int flags) {
  AlignToRect(BoundsOf(*reference), flags);
}

void RVADM_Item::PlaceBelow(RVADM_Item* other, int flags, int gap) {
  AlignUnlessNone(*other, *this, flags);
  if (gap == kDefaultGap) gap = VerticalGap(GetDialog()->GetMetrics(), kind, other->kind);
  other->MoveTo(other->GetLeft(), GetBottom() + gap, false);
}

void RVADM_Item::PlaceAbove(RVADM_Item* other, int flags, int gap) {
  AlignUnlessNone(*other, *this, flags);
  if (gap == kDefaultGap) gap = VerticalGap(GetDialog()->GetMetrics(), other->kind, kind);
  other->MoveTo(other->GetLeft(), GetTop() - gap - other->GetHeight(), false);
}

void RVADM_Item::PlaceRightOf(RVADM_Item* other, int flags, int gap) {
  AlignUnlessNone(*other, *this, flags);
  if (gap == kDefaultGap) gap = HorizontalGap(GetDialog()->GetMetrics(), kind, other->kind);
  other->MoveTo(GetRight() + gap, other->GetTop(), false);
}

void RVADM_Item::PlaceLeftOf(RVADM_Item* other, int flags, int gap) {
  AlignUnlessNone(*other, *this, flags);
  if (gap == kDefaultGap) gap = HorizontalGap(GetDialog()->GetMetrics(), other->kind, kind);
  other->MoveTo(GetLeft() - gap - other->GetWidth(), other->GetTop(), false);
}

void RVADM_Item::FitDialogToItem(int flags) {
  FitToItem(*GetDialog(), *this, flags);
}

void RVADM_Item::FitParentToItem(int flags) {
  FitToItem(*parent, *this, flags);
}

void RVADM_Item::MoveTo(int x, int y, bool relative) {
  const ADMRect bounds = BoundsOf(*this);
  const int left = relative ? bounds.left + x : x;
  const int top = relative ? bounds.top + y : y;
  SetBounds({left, top, left + Width(bounds), top + Height(bounds)});
}

int RVADM_Item::GetLeft() {
  return BoundsOf(*this).left;
}

int RVADM_Item::GetTop() {
  return BoundsOf(*this).top;
}

int RVADM_Item::GetRight() {
  return BoundsOf(*this).right;
}

int RVADM_Item::GetBottom() {
  return BoundsOf(*this).bottom;
}

int RVADM_Item::GetWidth() {
  return Width(BoundsOf(*this));
}

int RVADM_Item::GetHeight() {
  return Height(BoundsOf(*this));
}

void RVADM_Item::SetLeft(int left) {
  MoveTo(left, GetTop(), false);
}

void RVADM_Item::SetRight(int right) {
  const ADMRect bounds = BoundsOf(*this);
  SetBounds({bounds.left, bounds.top, right, bounds.bottom});
}

void RVADM_Item::SetBottom(int bottom) {
  const ADMRect bounds = BoundsOf(*this);
  SetBounds({bounds.left, bounds.top, bounds.right, bottom});
}

void RVADM_Item::SetWidth(int width) {
  SetSize(width, GetHeight());
}

void RVADM_Item::SetHeight(int height) {
  SetSize(GetWidth(), height);
}

void RVADM_Item::SetSize(int width, int height) {
  const ADMRect bounds = BoundsOf(*this);
  SetBounds({bounds.left, bounds.top, bounds.left + width, bounds.top + height});
}

}  // namespace qRVADM
