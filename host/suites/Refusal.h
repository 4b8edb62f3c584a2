// Makes suite calls fail on request, and counts them.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// One entry of a suite's table.
struct EntryRecord {
  const char* suite;
  const char* name;
  bool refusable;        // has a result that can tell a failure
  bool watched = false;  // a rule of the installed Refusal names it
};

// Counted is every call of an entry that has a result code, or a pointer that is null on failure;
// AcquireSuite and ReleaseSuite are calls of "SP Basic Suite". A refused call returns
// kSPCanceledByHostError, or null, and does nothing.
class Refusal {
 public:
  Refusal() = default;
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;
  ~Refusal() { clear(); }

  // A rule as a command line gives it:
  //   "AI Layer Suite"          the suite can't be acquired: kSPSuiteNotFoundError
  //   "AI Art Suite:NewArt"     every call of that entry fails
  //   "AI Art Suite:NewArt:3"   the third call from now on fails
  // Empty, or one sentence on what is wrong with the rule.
  std::string add(std::string_view rule);
  void armNth(std::uint64_t n) { nth_ = n == 0 ? 0 : calls_ + n; }  // the n-th call from now; 0: none
  void clear();  // all rules and the armed call; counts and reports stay

  bool withholds(std::string_view suite);
  std::uint64_t callCount() const { return calls_; }
  // What was refused, in order: "AI Art Suite:NewArt, call 3" (counted since the rule, or as the call of
  // the run for armNth: "AI Art Suite:NewArt, call 118 of the run"), "AI Layer Suite, withheld".
  const std::vector<std::string>& refused() const { return refused_; }

  // For the guard of every entry: counts the call; false if it is to fail.
  bool admits(EntryRecord& entry) {
    ++calls_;
    return (calls_ != nth_ && !entry.watched) || admitsWatched(entry);
  }

 private:
  struct Rule {
    std::uint64_t calls = 0;  // since the rule
    bool always = false;
    std::vector<std::uint64_t> which;  // calls to refuse
  };

  void addRule(EntryRecord& entry, std::uint64_t call);  // call 0: every one
  bool admitsWatched(EntryRecord& entry);

  std::uint64_t calls_ = 0;
  std::uint64_t nth_ = 0;
  std::map<EntryRecord*, Rule> rules_;
  std::vector<std::string> withheld_;
  std::vector<std::string> refused_;
};

}  // namespace host
