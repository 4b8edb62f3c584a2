// The window of the host, which dialogs of plug-ins stand over.
#pragma once

class QWidget;

namespace host {

// Not owned; null, or the end of the widget, stands for no window.
void setHostWindow(QWidget* window);
QWidget* hostWindow();

}  // namespace host
