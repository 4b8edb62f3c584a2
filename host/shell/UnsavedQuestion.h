// What is to become of changes that are in no file.
#pragma once

#include <cstddef>

class QString;
class QWidget;

namespace host {

enum class UnsavedAnswer { Save, Discard, Cancel, SaveAll, DiscardAll };

// Asks in a box over `parent`; `title` is the drawing's. Where `others` with unsaved changes wait for the
// same question, one answer can be for all of them.
UnsavedAnswer askAboutUnsaved(const QString& title, std::size_t others, QWidget* parent);

}  // namespace host
