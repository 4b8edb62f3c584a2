#include "RVADM_ItemParent.h"

#include <QWidget>

#include "RVADM_Item.h"

namespace qRVADM {
namespace {

using MapPoint = void (RVADM_ItemParent::*)(ADMPoint*);

void MoveByCorner(RVADM_ItemParent& container, MapPoint map, ADMRect* rect) {
  ADMPoint corner{rect->left, rect->top};
  (container.*map)(&corner);
  const int dx = corner.x - rect->left;
  const int dy = corner.y - rect->top;
  *rect = {rect->left + dx, rect->top + dy, rect->right + dx, rect->bottom + dy};
}

void Assign(ADMPoint* point, const QPoint& mapped) {
  *point = {mapped.x(), mapped.y()};
}

}  // namespace

void RVADM_ItemParent::GetLocalRect(ADMRect* rect) {
  *rect = ToADMRect(GetWidget()->contentsRect());
}

void RVADM_ItemParent::SetLocalRect(const ADMRect& rect) {
  QWidget* widget = GetWidget();
  widget->resize(widget->size() - widget->contentsRect().size() + QSize(Width(rect), Height(rect)));
}

void RVADM_ItemParent::ScreenToLocalPoint(ADMPoint* point) {
  Assign(point, GetWidget()->mapFromGlobal({point->x, point->y}));
}

void RVADM_ItemParent::LocalToScreenPoint(ADMPoint* point) {
  Assign(point, GetWidget()->mapToGlobal({point->x, point->y}));
}

void RVADM_ItemParent::ParentToLocalPoint(ADMPoint* point) {
  Assign(point, GetWidget()->mapFromParent({point->x, point->y}));
}

void RVADM_ItemParent::LocalToParentPoint(ADMPoint* point) {
  Assign(point, GetWidget()->mapToParent({point->x, point->y}));
}

void RVADM_ItemParent::ScreenToLocalRect(ADMRect* rect) {
  MoveByCorner(*this, &RVADM_ItemParent::ScreenToLocalPoint, rect);
}

void RVADM_ItemParent::LocalToScreenRect(ADMRect* rect) {
  MoveByCorner(*this, &RVADM_ItemParent::LocalToScreenPoint, rect);
}

void RVADM_ItemParent::ParentToLocalRect(ADMRect* rect) {
  MoveByCorner(*this, &RVADM_ItemParent::ParentToLocalPoint, rect);
}

void RVADM_ItemParent::LocalToParentRect(ADMRect* rect) {
  MoveByCorner(*this, &RVADM_ItemParent::LocalToParentPoint, rect);
}

void RVADM_ItemParent::SetMargins(int margin) {
  SetMargins(margin, margin, margin, margin);
}

void RVADM_ItemParent::SetMargins(int left, int top, int right, int bottom) {
  leftMargin = left;
  topMargin = top;
  rightMargin = right;
  bottomMargin = bottom;
}

void RVADM_ItemParent::GetContentRect(ADMRect* rect) {
  GetLocalRect(rect);
  *rect = {rect->left + leftMargin, rect->top + topMargin, rect->right - rightMargin,
           rect->bottom - bottomMargin};
}

void RVADM_ItemParent::SetContentRect(const ADMRect& rect) {
  SetLocalRect(
      {rect.left - leftMargin, rect.top - topMargin, rect.right + rightMargin, rect.bottom + bottomMargin});
}

void RVADM_ItemParent::AlignItem(RVADM_Item* item, int flags) {
  ADMRect content;
  GetContentRect(&content);
  item->AlignToRect(content, flags);
}

}  // namespace qRVADM
