#include "QtLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string>
#include <vector>

#include "PreferredLanguages.h"

namespace host {

void speakPreferredLanguage(QCoreApplication& application) {
  const std::vector<std::string> languages = preferredLanguages();
  if (!languages.empty()) QLocale::setDefault(QLocale(QString::fromStdString(languages.front())));
  const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
  for (const std::string& language : languages) {
    if (primaryLanguage(language) == "en") return;  // what Qt speaks by itself
    auto* translator = new QTranslator(&application);
    const QString name = "qtbase_" + QString::fromStdString(language).replace('-', '_');
    if (translator->load(name, folder)) {  // which also tries the name cut at its last "_"
      QCoreApplication::installTranslator(translator);
      return;
    }
    delete translator;
  }
}

}  // namespace host
