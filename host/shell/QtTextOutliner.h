// Outlines of text through Qt's fonts.
#pragma once

#include "TextOutliner.h"

namespace host {

// Needs Qt's application; makes one without a display at the first outline if there is none, so that drawings
// without text don't pay for it.
class QtTextOutliner : public TextOutliner {
 public:
  TextOutline outline(const TextRun& run) const override;
};

}  // namespace host
