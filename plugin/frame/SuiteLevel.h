// Holds the requested suites for a scope.
#pragma once

#include "HMX_AISuiteManager.h"

class SuiteLevel {
 public:
  explicit SuiteLevel(HMX_AISuiteManager& suites) : suites_(suites), code_(suites.Acquire()) {}
  SuiteLevel(const SuiteLevel&) = delete;
  SuiteLevel& operator=(const SuiteLevel&) = delete;
  ~SuiteLevel() { suites_.Release(); }

  SPErr code() const { return code_; }  // 0 if every suite asked for is held

 private:
  HMX_AISuiteManager& suites_;
  SPErr code_;
};
