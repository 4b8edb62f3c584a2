// A tool with which marks of one shape are placed by hand, as the rest of the plug-in sees it.
#pragma once

#include "AIColor.h"
#include "HMX_AITool.h"

namespace Vandrell::Corvane {

class CutTool : public HMX_AITool {
 public:
  using HMX_AITool::HMX_AITool;

  virtual void SetColors(const AIColor& fillColor, const AIColor& strokeColor) = 0;  // of the next marks
  virtual void ResetColors() = 0;                                                    // to the defaults
  virtual void RefreshAnnotator() = 0;  // the table head of this tool, if it has one
};

}  // namespace Vandrell::Corvane
