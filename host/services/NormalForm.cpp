#include "NormalForm.h"

#include <QString>

#include "Utf8.h"

namespace host {

std::optional<std::string> normalFormC(std::string_view text) {
  if (validUtf8(text) != text) return std::nullopt;
  const QString wide = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
  return wide.normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace host
