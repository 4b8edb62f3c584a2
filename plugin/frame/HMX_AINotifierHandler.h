// The plug-in's notifiers.
#pragma once

#include <memory>
#include <vector>

#include "HMX_AINotifier.h"

class HMX_AINotifierHandler {
 public:
  HMX_AINotifierHandler();
  HMX_AINotifierHandler(const HMX_AINotifierHandler&) = delete;
  HMX_AINotifierHandler& operator=(const HMX_AINotifierHandler&) = delete;
  virtual ~HMX_AINotifierHandler();  // destroys all notifiers

  AIErr Add(HMX_AINotifier* notifier);  // takes ownership; twice makes two entries
  // Takes out every entry of it and gives up ownership. kNotifierNotFoundErr if there is none.
  AIErr Remove(HMX_AINotifier* notifier);

  // Hands a message of the notifier caller to the notifier it is for. Always 0: events ask for no answer.
  AIErr HandleMessage(const char* caller, const void* message);

 private:
  std::vector<std::unique_ptr<HMX_AINotifier>> notifiers;
};
