#include "KeyModifiers.h"

#include "Platform.h"

namespace host {
namespace {

KeyModifierSource modifierSource = nullptr;

}  // namespace

void setKeyModifierSource(KeyModifierSource source) {
  modifierSource = source;
}

}  // namespace host

std::uint32_t GetCurrentKeyModifiers() {
  return host::modifierSource != nullptr ? host::modifierSource() : 0;
}
