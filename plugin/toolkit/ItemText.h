// The text that a widget shows, whatever its class calls it.
#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>

class QWidget;

namespace qRVADM {

QString TextOfWidget(const QWidget& widget);                 // empty for a widget without text
bool SetTextOfWidget(QWidget& widget, const QString& text);  // false for one

// At most `size` - 1 units and a closing 0, without half a character at the end. Nothing for size 0.
void CopyUTF16(std::uint16_t* target, const QString& source, std::size_t size);

}  // namespace qRVADM
