// A basic suite that hands out a table for any name, keeps a log, and refuses what it is told to.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "SPBasic.h"

struct FakeBasicSuite {
  // "+ name version" for an acquisition, "- name version" for a release.
  static inline std::vector<std::string> log;
  static inline std::set<std::string> refused;
  static inline SPErr releaseResult = kSPNoError;

  static void Clear() {
    log.clear();
    refused.clear();
    releaseResult = kSPNoError;
  }
  static std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  static const SPBasicSuite* Table() {
    static const SPBasicSuite table{Acquire, Release, nullptr, nullptr, nullptr};
    return &table;
  }

 private:
  static SPErr Acquire(const char* name, std::int32_t version, const void** suite) {
    alignas(16) static const char content[16] = {};
    log.push_back("+ " + std::string(name) + " " + std::to_string(version));
    *suite = refused.count(name) != 0 ? nullptr : content;
    return *suite == nullptr ? kSPSuiteNotFoundError : kSPNoError;
  }
  static SPErr Release(const char* name, std::int32_t version) {
    log.push_back("- " + std::string(name) + " " + std::to_string(version));
    return releaseResult;
  }
};
