// The manager library: what all plug-ins with dialogs share in one host process.
#pragma once

struct SPBasicSuite;

namespace RVADMQtManager {

class QtManager {
 public:
  // Called once by every plug-in before any other operation; not owned.
  static void SetSPBasicSuite(const SPBasicSuite* basic);

  // While at least one dialog is counted the host takes no menu command and no tool message.
  static void IncreaseDialogCount();
  static void DecreaseDialogCount();  // never below 0
  static int DialogCount();
};

}  // namespace RVADMQtManager
