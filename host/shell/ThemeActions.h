// The commands that choose a theme.
#pragma once

#include <QList>
#include <functional>

#include "Theme.h"

class QAction;
class QObject;

namespace host {

// One for each theme; that of the present one is checked. Owned by `owner`.
QList<QAction*> makeThemeActions(QObject& owner, const std::function<void(Theme)>& choose);

}  // namespace host
