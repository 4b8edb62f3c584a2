#include "AlertLine.h"

namespace host {

std::string alertLine(const Alert& alert) {
  std::string text;
  bool betweenWords = false;
  for (const char c : alert.text) {
    const bool isBreak = c == '\n' || c == '\r';
    if (!isBreak && betweenWords && !text.empty()) text += ' ';
    if (!isBreak) text += c;
    betweenWords = isBreak;
  }
  return (alert.kind == AlertKind::Error ? "error: " : "message: ") + text;
}

}  // namespace host
