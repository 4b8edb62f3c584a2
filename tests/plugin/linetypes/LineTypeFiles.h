// The files of line types and the preferences, in the real host, with a user who closes every message.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <cstdlib>
#include <string>
#include <vector>

#include "HeldSuites.h"
#include "LineTypeGroup.h"
#include "ScratchFolder.h"

namespace Vandrell::Corvane {

inline std::string LineTypeJSON(const std::string& name) {
  return R"({"name":")" + name +
         R"(","isCustomDataModel":true,"customColor":{"kind":1,"flag":1,"rgb":[1,0,0.5]}})";
}

// A file of one group with line types of these names.
inline std::string FileOf(const std::string& group, const std::vector<std::string>& names) {
  std::string text = R"({"Default":")" + group + R"(","Groups":{")" + group + "\":[";
  for (const std::string& name : names) text += (&name == names.data() ? "" : ",") + LineTypeJSON(name);
  return text + "]}}";
}

inline std::vector<std::string> NamesOf(const std::vector<LineType>& types) {
  std::vector<std::string> names;
  for (const LineType& type : types) names.push_back(type.name.as_UTF8());
  return names;
}

class LineTypeFiles : public testing::Test {
 protected:
  LineTypeFiles() {
    setenv("LOCALE_PATH", scratch.file("resources").c_str(), 1);
    setenv("CORVANE_SHARED_DATA", scratch.file("shared").c_str(), 1);
    QObject::connect(&user, &QTimer::timeout, [this] { CloseMessage(); });
    user.start(1);
  }

  std::string WriteStandard(const std::string& text) const {
    return scratch.write("resources/CurveLayerDefinition.json", text);
  }
  std::string WriteCustom(const std::string& text) const { return scratch.write(kCustomPath, text); }
  std::string ReadCustom() const { return scratch.read(kCustomPath); }
  void StoreShown(const std::string& group, const std::string& names) {
    host.preferences().put("Corvane/Line Types", group, names);
  }
  std::string Shown(const std::string& group) {
    return host.preferences().string("Corvane/Line Types", group).value_or("none stored");
  }

  static constexpr char kPresets[] = "shared/Vandrell/corvane";
  static constexpr char kCustomPath[] = "shared/Vandrell/corvane/CustomLayerDefinition.json";

  int argumentCount = 1;
  char programName[5] = "test";
  char* arguments[2] = {programName, nullptr};
  const QApplication application{argumentCount, arguments};
  host::Host host;
  const HeldSuites suites{
      host,
      {"AI Preference Suite", "AI Custom Color Suite", "AI Color Conversion Suite", "AI Unicode String Suite",
       "AI User Suite", "SP Basic Suite", "SP Plug-ins Suite", "AI Data Filter Suite", "AI File Path Suite"}};
  const ScratchFolder scratch;
  std::vector<std::string> messages;  // the texts of the critical messages that came up

 private:
  void CloseMessage() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->inherits("RVADM_CriticalMessageDialog")) return;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) messages.push_back(label->text().toStdString());
    }
    dialog->close();
  }

  QTimer user;
};

}  // namespace Vandrell::Corvane
