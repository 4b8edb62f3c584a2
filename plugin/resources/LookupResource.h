// Texts of the database with its fallback.
#pragma once

#include "RDB.h"

// The text under the key of `prefix`, plain text, followed by `suffix`, a key; either may be null, both gives
// null. Null `database` stands for the texts in use; a key they lack is recorded as missing. In the end the
// branch "Defaults" of the texts in use is asked. Null if there is no such text, or no texts are in use.
RDB_Text LookupResource(const RDB_Database* database, const char* prefix, const char* suffix);
