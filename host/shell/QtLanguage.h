// Qt's own words, such as the buttons of its boxes, in the user's language.
#pragma once

class QCoreApplication;

namespace host {

// Loads the translation of the first preferred language that Qt has one for, which lasts until the next call
// or the end of the application, and makes the most preferred language the default of QLocale.
void speakPreferredLanguage(QCoreApplication& application);

}  // namespace host
