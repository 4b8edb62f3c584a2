#include "QtLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string>
#include <vector>

#include "PreferredLanguages.h"

namespace host {
namespace {

constexpr char kName[] = "QtLanguage";

// Null if Qt has no translation into it.
QTranslator* translatorFor(const std::string& language, QCoreApplication& application) {
  auto* translator = new QTranslator(&application);
  translator->setObjectName(kName);
  const QString name = "qtbase_" + QString::fromStdString(language).replace('-', '_');
  const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
  if (translator->load(name, folder)) return translator;  // which also tries the name cut at its last "_"
  delete translator;
  return nullptr;
}

}  // namespace

void speakPreferredLanguage(QCoreApplication& application) {
  // What was spoken before ends with its translator.
  qDeleteAll(application.findChildren<QTranslator*>(kName, Qt::FindDirectChildrenOnly));
  const std::vector<std::string> languages = preferredLanguages();
  QLocale::setDefault(languages.empty() ? QLocale::system()
                                        : QLocale(QString::fromStdString(languages.front())));
  for (const std::string& language : languages) {
    if (primaryLanguage(language) == "en") return;  // what Qt speaks by itself
    if (QTranslator* translator = translatorFor(language, application)) {
      QCoreApplication::installTranslator(translator);
      return;
    }
  }
}

}  // namespace host
