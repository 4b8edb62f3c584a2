// What holds for every text database.
#pragma once

#include "RDB_Database.h"

// Ends the program unless the tree is sound and every key in it is answered by its own value, also in a copy
// and after that was merged once more, and unless its inversion is sound.
void ExpectProperties(const RDB_Database& db);
