// A database as one line of text, for comparing.
#pragma once

#include <string>

#include "RDB_Database.h"

// "a/b=text, a/<*>=other": the keys with a value in the order of a walk; wildcards stand as <*> and <.>.
std::string Listing(const RDB_Database* db);
// One key, "'a'/<*>/'b'": ordinary components stand in quotes, for they may be empty.
std::string PartsListing(const char* key);
