// The record of keys that no text file answers, for translators.
#pragma once

// Is there a record? It is kept in the file that the environment variable LOCALE_MISSING names.
bool MissingKeysAreRecorded();

// Appends the key to the file, in the syntax of the text files with its last component as the text, unless it
// is in it already. Nothing happens if there is no record or the file cannot be written.
void RecordMissingKey(const char* key);
