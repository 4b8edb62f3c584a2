// The text files of the product and its language.
#pragma once

// A module is the file "<name>.asc" of the resource folder, in English, and the one of that name in the
// language's localisation, whose entries come before it. The base module "rv" is always there; a module that
// is registered later overrides those before it.

// Reads a module and keeps it for every later language. One that is registered already, in letters of any
// case, is not read again. Nothing happens if memory runs out.
void RegisterTextModule(const char* name);

// Reads all modules anew in a language: the name of a localisation, or "Bundle" for the one that the bundle
// chooses by the user's languages. Null, or the language in use, does nothing.
void SetLanguage(const char* name);

// Sets the language that the environment variable RVLANG names, "C" without it, if none is set yet.
void EnsureTextInitialised();

// Adds a module's texts to those in use; a missing file is no error.
void LoadTextModule(const char* name);

// Forgets texts, modules and language. The next use of the text system brings it back without the modules.
void FreeTextState();
