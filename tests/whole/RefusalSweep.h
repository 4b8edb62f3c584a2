// One action of the user, with each of its suite calls refused in turn.
#pragma once

#include <ostream>

#include "RefusalWorld.h"

namespace host {

// How an action tells that the host has refused it something.
enum class Tells {
  Nothing,         // nobody hears of it
  Code,            // its message answers a code
  CodeAndMessage,  // both, or neither
  Message,         // it has no code
};

struct Sweep {
  const char* name;
  void (*prepare)(RefusalWorld&);  // before every run, without refusals
  void (*act)(RefusalWorld&);
  Tells tells;
  const char* message = nullptr;  // what it says then, and nothing else
  const char* failure = nullptr;  // what the host says of it where its code may throw
};

// For the names of tests.
inline void PrintTo(const Sweep& row, std::ostream* out) {
  *out << row.name;
}

// Counts the action's calls, then runs it with each of them refused, with each kind of call refused for good,
// and with each suite that it uses. After every run the action has told what it is to tell; no context and no
// dialog is left, nothing of the host's is held beyond the action; the drawing saves, reads as the same from
// what was saved, and one undo at most brings back what it was. And without refusals all is as ever.
void sweep(const Sweep& row);

}  // namespace host
