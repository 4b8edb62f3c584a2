#include "ThreeAnswers.h"

#include "TextKey.h"

namespace gallery {

ThreeAnswers::ThreeAnswers() {
  buttonTexts[2] = TextKey("Don't Save");
  buttonTips[2] = TextKey("What was changed is lost.");
  Ask(TextKey("Save the sheet before it is closed?"), true, TextKey("Otherwise the changes are lost."), true,
      TextKey("Save"), TextKey("Cancel"), true);
}

}  // namespace gallery
