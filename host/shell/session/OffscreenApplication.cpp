#include "OffscreenApplication.h"

#include "GuardedApplication.h"
#include "ProgramName.h"

namespace host {
namespace {

// Qt would tell the user of folders that only a window needs.
void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

void ensureApplication() {
  if (QCoreApplication::instance() != nullptr) return;
  const QtMessageHandler before = qInstallMessageHandler(dropMessage);
  static int argc = 1;
  static std::string name = kProgramName;
  static char* argv[] = {name.data(), nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // What belongs to the thread ends before all statics, of which Qt makes many as they are needed and needs
  // some of them when the application ends.
  static thread_local const GuardedApplication application(argc, argv);
  qInstallMessageHandler(before);
}

}  // namespace host
