// What a dialog says, and whether that is all it does.
#pragma once

#include <QString>

class QWidget;

namespace host {

// The title and the texts on the dialog that can be seen, from the top down and in a line from the left; in
// plain text, one line each at least. Empty if it says nothing.
QString textsOf(const QWidget& dialog);

// Is there anything to enter or to choose from, beside buttons and boxes to check?
bool hasInputFields(const QWidget& dialog);

}  // namespace host
