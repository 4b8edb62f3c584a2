// Where plug-ins keep what all users of the machine share.
#pragma once

#include <string>

namespace host {

// The absolute path; the folder is made if it is missing, and is open to all users itself, so that nobody who
// opens up what is below it has a reason to go on above it. It is the one that the environment variable
// CORVANE_SHARED_DATA names; else "shared" in /var/lib/corvane-host, if an installation made that one; else
// "shared" in the user's own data folder. Empty if it can be neither found nor made.
std::string sharedDataFolder();

}  // namespace host
