// The menu of a panel as the user sees it.
#pragma once

#include <functional>

#include "FlyoutMenu.h"

class QMenu;
class QWidget;

namespace host {

// Deletes itself when it has closed. `choose` gets the id of the item that the user has chosen.
QMenu* makeFlyoutPopup(const FlyoutMenu& menu, QWidget* parent,
                       const std::function<void(std::uint32_t)>& choose);

}  // namespace host
