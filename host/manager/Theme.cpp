#include "Theme.h"

#include "Look.h"

namespace host {
namespace {

Theme present = Theme::Light;

}  // namespace

void setTheme(Theme theme) {
  present = theme;
  bringLook();
}

Theme theme() {
  return present;
}

}  // namespace host
