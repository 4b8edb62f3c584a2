#include <QApplication>
#include <QBuffer>
#include <clocale>
#include <cstdlib>
#include <iostream>

#include "AlertLine.h"
#include "Commands.h"
#include "Complain.h"
#include "Display.h"
#include "DrawingFile.h"
#include "GuardedApplication.h"
#include "KeyModifiers.h"
#include "MainWindow.h"
#include "Platform.h"
#include "PreferredLanguages.h"
#include "ProgramName.h"
#include "QtLanguage.h"
#include "Session.h"
#include "Startup.h"
#include "Theme.h"
#include "WindowPicture.h"
#include "WindowSettings.h"

namespace host {
namespace {

constexpr char kNoDisplay[] =
    "there is no display to open a window on; the commands marks, export and info work without one";

// Qt ends the process when the display does not answer.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  complain(kNoDisplay);
  std::_Exit(kExitCouldNot);
}

std::uint32_t heldKeys() {
  const Qt::KeyboardModifiers held = QGuiApplication::queryKeyboardModifiers();
  std::uint32_t bits = 0;
  if (held.testFlag(Qt::ShiftModifier)) bits |= kShiftKeyModifier;
  if (held.testFlag(Qt::AltModifier)) bits |= kOptionKeyModifier;
  if (held.testFlag(Qt::ControlModifier)) bits |= kCommandKeyModifier;
  return bits;
}

class HeldKeys {
 public:
  HeldKeys() { setKeyModifierSource(heldKeys); }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;
  ~HeldKeys() { setKeyModifierSource(nullptr); }
};

class WindowRun {
 public:
  WindowRun(const WindowArguments& arguments, const CommonOptions& common)
      : arguments_(arguments), common_(common), host_(userPreferences(), userFolders()), session_(host_) {}

  ExitCode run() {
    for (const std::string& wrong : {overlayPreferences(host_, common_), armRefusals(host_, common_)}) {
      if (wrong.empty()) continue;
      complain(wrong);
      return kExitUsage;
    }
    const std::string language = chooseLook();
    MainWindow window(host_, session_, dialogFileChooser(), language);
    window.onCommandDone = [this] { refusals_.tell(host_); };
    return arguments_.screenshot.empty() ? stayOpen(window) : takePicture(window);
  }

 private:
  // As the command line says, or else as it was chosen last. The tag of the language; empty: the
  // environment's.
  std::string chooseLook() {
    const WindowSettings settings(host_.preferences());
    std::string language = common_.language.empty() ? settings.language() : common_.language;
    if (!language.empty()) preferLanguage(language);
    speakPreferredLanguage(*QCoreApplication::instance());
    const bool isDark = common_.theme.empty() ? settings.theme() == Theme::Dark : common_.theme == "dark";
    setTheme(isDark ? Theme::Dark : Theme::Light);
    return language;
  }

  void storePreferences() {
    if (const std::string reason = host_.preferences().save(); !reason.empty()) complain(reason);
  }

  // What went wrong, a sentence each.
  std::vector<std::string> start(MainWindow& window) {
    std::vector<std::string> complaints;
    if (std::string reason = loadPlugin(session_, common_); !reason.empty()) {
      complaints.push_back(std::move(reason));
    }
    refusals_.tell(host_);
    session_.start();
    window.refresh();
    window.show();
    if (arguments_.screenshot.empty()) window.offerLostDrawings();
    for (std::string& reason : window.openFiles(arguments_.files)) complaints.push_back(std::move(reason));
    return complaints;
  }

  ExitCode stayOpen(MainWindow& window) {
    window.onChoice = [this] { storePreferences(); };
    window.tell(start(window));
    const int code = QApplication::exec();
    session_.shutdown();
    storePreferences();
    return code == 0 ? kExitDone : kExitCouldNot;
  }

  // Nobody is there to answer boxes, and nothing is stored.
  ExitCode takePicture(MainWindow& window) {
    host_.showAlert = [](const Alert& alert) { std::cerr << alertLine(alert) << '\n'; };
    WindowPicture picture(window);
    std::vector<std::string> complaints = start(window);
    if (picture.image().isNull()) QApplication::exec();
    session_.shutdown();
    QByteArray png;
    QBuffer buffer(&png);
    picture.image().save(&buffer, "PNG");
    const std::string_view bytes(png.constData(), static_cast<std::size_t>(png.size()));
    if (std::string reason = saveBytes(arguments_.screenshot, bytes); !reason.empty()) {
      complaints.push_back(std::move(reason));
    }
    for (const std::string& sentence : complaints) complain(sentence);
    return complaints.empty() ? kExitDone : kExitCouldNot;
  }

  const WindowArguments& arguments_;
  const CommonOptions& common_;
  Host host_;
  Session session_;
  RefusalReport refusals_;
};

}  // namespace

ExitCode runWindow(const WindowArguments& arguments, const CommonOptions& common) {
  if (!hasDisplay()) {
    complain(kNoDisplay);
    return kExitCouldNot;
  }
  QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  const QtMessageHandler before = qInstallMessageHandler(endWithoutDisplay);
  int argc = 1;
  std::string name = kProgramName;
  char* argv[] = {name.data(), nullptr};
  GuardedApplication application(argc, argv);
  qInstallMessageHandler(before);
  std::setlocale(LC_NUMERIC,
                 "C");  // Qt has taken over the user's locale, which must not reach numbers in files
  QGuiApplication::setApplicationDisplayName(kProgramName);
  const HeldKeys keys;
  return WindowRun(arguments, common).run();
}

}  // namespace host
