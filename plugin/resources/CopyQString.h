// Qt's text into a buffer of fixed size.
#pragma once

#include <cstddef>

class QString;

// CopyUTF8 of the string's UTF-8.
char* CopyQString(char* target, const QString& source, std::size_t size);
