#include "CopyQString.h"

#include <QString>

#include "CopyUTF8.h"

char* CopyQString(char* target, const QString& source, std::size_t size) {
  return CopyUTF8(target, source.toUtf8().constData(), size);
}
