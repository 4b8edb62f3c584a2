// Push buttons, tool buttons, and what is checked.
#pragma once

#include "Paint.h"

class QStyleOptionButton;

namespace host::look {

void pushButton(const Paint& paint);
void pushButtonPanel(const Paint& paint);
void pushButtonLabel(const Paint& paint);
void toolButtonPanel(const Paint& paint);
void checkBoxIndicator(const Paint& paint);
void radioButtonIndicator(const Paint& paint);
void focusRing(const Paint& paint);

// A button of a plug-in's dialog says itself whether it is the default one; of other buttons Qt knows.
bool looksDefault(const QStyleOptionButton& option, const QWidget* widget);
bool closesModalDialog(const QWidget* widget);

}  // namespace host::look
