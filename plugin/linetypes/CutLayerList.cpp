#include "CutLayerList.h"

namespace Vandrell::Corvane {
namespace {

constexpr int kRowWidth = 230;
constexpr int kRowHeight = 21;
constexpr int kNameColumn = 20;

}  // namespace

CutLayerList::CutLayerList(qRVADM::RVADM_ItemParent* parent) : RVADM_TabListBox(parent, true) {
  tabCount = 2;
  tabStops = {kNameColumn};
  SetRowHeight(kRowHeight);
  SetContentWidth(kRowWidth);
}

}  // namespace Vandrell::Corvane
