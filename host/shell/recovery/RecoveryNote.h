// What is known of an unsaved drawing beside what it holds.
#pragma once

#include <cstdint>
#include <string>

namespace host {

struct RecoveryNote {
  std::string title;      // for people
  std::string file;       // absolute path of the drawing's own file; empty if it has none
  std::int64_t time = 0;  // of the copy, in seconds since 1970 UTC
};

std::string noteAsJson(const RecoveryNote& note);
// What can be understood of it; the rest is as by default.
RecoveryNote noteFromJson(const std::string& json);

}  // namespace host
