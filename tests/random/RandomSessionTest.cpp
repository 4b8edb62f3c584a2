// Sessions of a user who does anything whatever. A failure tells the seed, and what was done last:
// CORVANE_SEED=7 CORVANE_ACTIONS=100000 test-random plays the very session of that seed, as long as wanted,
// and tells every action before it is done.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "Doings.h"
#include "SessionChecks.h"
#include "Stage.h"

namespace host {
namespace {

constexpr int kActions = 150;
constexpr int kSessions = 3;
constexpr int kBetweenFiles = 10;  // actions
constexpr int kBetweenJourneys = 40;

class RandomSession : public testing::TestWithParam<std::uint64_t> {
 protected:
  static bool isByHand() { return std::getenv("CORVANE_SEED") != nullptr; }
  static int actions() {
    const char* const wanted = std::getenv("CORVANE_ACTIONS");
    return wanted == nullptr ? kActions : std::atoi(wanted);
  }

  // What is broken after one more action.
  std::vector<std::string> act(int number) {
    stage.diary.note("--- " + std::to_string(number) + " " + stateOfDocument());
    stage.dialogs.begin();
    doAnything(stage);
    if (!stage.settle()) return {"the session comes to rest"};
    if (!stage.window().isVisible()) stage.startAgain();
    std::vector<std::string> broken = checks.look();
    if (broken.empty() && number % kBetweenFiles == 0) broken = checks.lookAtFiles();
    if (broken.empty() && number % kBetweenJourneys == 0) broken = checks.goBackAndForth();
    return broken;
  }
  std::string stateOfDocument() {
    const Document* const document = stage.document();
    if (document == nullptr) return "no drawing";
    return std::to_string(document->undoCount()) + " steps, " + std::to_string(document->selectedCount()) +
           " selected, revision " + std::to_string(document->revision());
  }

  Stage stage{GetParam(), isByHand()};
  SessionChecks checks{stage};
};

TEST_P(RandomSession, KeepsItsPromises) {
  for (int number = 1; number <= actions(); ++number) {
    const std::vector<std::string> broken = act(number);
    for (const std::string& promise : broken) ADD_FAILURE() << "broken: " << promise;
    if (!HasFailure()) continue;
    FAIL() << "seed " << GetParam() << ", action " << number << ", after\n" << stage.diary.lastLines();
  }
}

std::vector<std::uint64_t> seeds() {
  if (const char* wanted = std::getenv("CORVANE_SEED")) return {std::strtoull(wanted, nullptr, 10)};
  std::vector<std::uint64_t> all;
  for (std::uint64_t seed = 1; seed <= kSessions; ++seed) all.push_back(seed);
  return all;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSession, testing::ValuesIn(seeds()), testing::PrintToStringParamName());

}  // namespace
}  // namespace host
