// Databases from text, and as one line of text for comparing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "RDB_Database.h"

// What a text file of these bytes holds; its path in messages is "some.asc". The error stays in rdbError.
RDB_Handle DatabaseOf(std::string_view text);

// "a/b=text, a/<*>=other": the keys with a value in the order of a walk; wildcards stand as <*> and <.>.
std::string Listing(const RDB_Database* db);

// The words of a text that are apart by blanks.
std::vector<std::string> Words(const std::string& text);
