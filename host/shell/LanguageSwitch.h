// The language in which plug-ins and Qt speak, and its change while the window is open.
#pragma once

#include <QList>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QObject;

namespace host {

class Host;
class Session;

class LanguageSwitch {
 public:
  // `present` is the tag of the language that was asked for at the start; empty: the environment's. `changed`
  // is called after every change, with a sentence for each plug-in that did not come back. The host and the
  // session must outlive the object.
  LanguageSwitch(Host& host, Session& session, std::string present,
                 std::function<void(const std::vector<std::string>& complaints)> changed);

  // From now on, or as soon as no dialog is open and no plug-in is at work. Empty: the environment's.
  void choose(const std::string& language);
  const std::string& chosen() const { return chosen_; }

  // Tags of the languages there are to choose: English, and those of the texts in the plug-ins' bundles.
  std::vector<std::string> offered() const;

 private:
  void changeIfIdle();

  Host& host_;
  Session& session_;
  std::function<void(const std::vector<std::string>&)> changed_;
  std::string chosen_;
  std::string spoken_;
  QTimer timer_;  // runs while a change waits
};

// "English", "Deutsch", "português (Brasil)": as its speakers call it.
std::string nameOfLanguage(const std::string& tag);

}  // namespace host
