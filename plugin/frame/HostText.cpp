#include "HostText.h"

#include "SPBasic.h"

bool IsEqual(const char* a, const char* b) {
  return sSPBasic->IsEqual(a, b) != 0;
}
