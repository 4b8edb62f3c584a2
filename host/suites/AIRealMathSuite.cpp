#include "AIRealMath.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIBoolean rectInRect(Host&, const AIRealRect* inner, const AIRealRect* outer) {
  if (inner == nullptr || outer == nullptr) return 0;
  return inner->left >= outer->left && inner->right <= outer->right && inner->bottom >= outer->bottom &&
         inner->top <= outer->top;
}

}  // namespace

SuiteOffer realMathSuite() {
  SuiteEntries entries(kAIRealMathSuite);
  static const AIRealMathSuite table{entries.addUncounted<rectInRect>("AIRealRectInAIRealRect")};
  return entries.offer(kAIRealMathSuiteVersion, &table);
}

}  // namespace host
