// What the user is told about the files that define the line types. All are keys of translations.
#pragma once

#include "TextKey.h"

namespace Vandrell::Corvane {

// The file that ships with the plug-in is not there: the lists of line types stay empty.
constexpr const char* kDefinitionFileMissingText =
    TextKey("The Line Type Definition file was not found, please re-install the Vandrell corvane plug-in.");

// That file is there but cannot be opened, is no definition file, or lacks its groups or the default one.
constexpr const char* kDefinitionFileCorruptText = TextKey(
    "The Line Type Definition file seems corrupt and could not be read, please re-install the Vandrell "
    "corvane plug-in.");

// A name in the user's own file is too long; once for each such line type, whose name is then cut short.
constexpr const char* kLineTypeNameTooLongText =
    TextKey("The name of a line type can not be longer than 31 characters.");

// The user's own line types are to be written, and the folder for them can be neither found nor made.
constexpr const char* kPresetsFolderMissingText = TextKey("The presets folder does not exist.");

// The folder is there, but the file could not be written into it, or not whole.
constexpr const char* kCustomFileNotWrittenText =
    TextKey("The custom layer file could not be written in the presets folder.");

}  // namespace Vandrell::Corvane
