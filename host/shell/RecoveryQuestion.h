// What is to become of work that an earlier run has left behind.
#pragma once

#include <vector>

class QWidget;

namespace host {

struct LostDrawing;

enum class RecoveryAnswer { Recover, Discard, Later };

// Asks in a dialog over `parent`.
RecoveryAnswer askAboutLost(const std::vector<LostDrawing>& drawings, QWidget* parent);

}  // namespace host
