// Which widgets belong to dialogs of plug-ins. Marks last as long as the widget.
#pragma once

class QWidget;

namespace host {

void markPalette(QWidget& palette);
// Up to the window that the widget is part of: a dialog over a palette does not count.
bool isInPalette(const QWidget& widget);

// A top-level that plug-ins lay out themselves.
void markPluginDialog(QWidget& topLevel);
// Also true in a palette.
bool isInPluginDialog(const QWidget& widget);

}  // namespace host
