// How the folders and files of recovery are called.
#pragma once

namespace host {

// Below the folder of recovery: one folder a run, and those with copies that nobody could read.
constexpr char kSessionPrefix[] = "session-";
constexpr char kDamagedPrefix[] = "damaged-";
// In the folder of recovery it is held while sessions begin or are looked for; in that of a session for as
// long as the session lives.
constexpr char kLockName[] = "lock";
constexpr char kDrawingEnd[] = ".svg";
constexpr char kNoteEnd[] = ".json";

}  // namespace host
