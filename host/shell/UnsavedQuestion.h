// What is to become of changes that are in no file.
#pragma once

class QString;
class QWidget;

namespace host {

enum class UnsavedAnswer { Save, Discard, Cancel };

// Asks in a box over `parent`; `title` is the drawing's.
UnsavedAnswer askAboutUnsaved(const QString& title, QWidget* parent);

}  // namespace host
