// The plug-in's tools.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "HMX_AITool.h"

class HMX_AIToolHandler {
 public:
  HMX_AIToolHandler() = default;
  HMX_AIToolHandler(const HMX_AIToolHandler&) = delete;
  HMX_AIToolHandler& operator=(const HMX_AIToolHandler&) = delete;
  virtual ~HMX_AIToolHandler();  // destroys all tools

  // Takes ownership and the first free slot; a tool that is here already stays where it is.
  // kToolTableFullErr leaves the tool with the caller.
  AIErr Add(HMX_AITool* tool);
  AIErr Remove(
      HMX_AITool* tool);  // gives up ownership and frees the slot; kToolNotFoundErr if it is not here

  // Hands a message of the tool caller to the tool it is for. Its result, or 0 if it is nobody's.
  AIErr HandleMessage(const char* caller, const char* selector, const void* message);

  std::int32_t count = 0;  // the highest slot ever in use plus one

 private:
  std::array<std::unique_ptr<HMX_AITool>, 10> slots;
};
