#include "Localize.h"

const char* Localize(const char* text) {
  return text;
}
