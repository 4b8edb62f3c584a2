// How the entries of a suite's table reach the host: every call goes through one guard.
#pragma once

#include <new>
#include <type_traits>

#include "Host.h"
#include "SuiteCatalog.h"

namespace host {

// Tells results that can carry a failure from those that can't.
template <typename Result>
struct Outcome {
  static Result failed(AIErr) { return Result{}; }
};
template <>
struct Outcome<AIErr> {
  static AIErr failed(AIErr code) { return code; }
};

// `Function` is what an entry does; it takes the host before the entry's own arguments. The guard counts
// and refuses calls as the host's Refusal says, and turns an exception into a code, or null.
template <auto Function>
struct Guard;

template <typename Result, typename... Args, Result (*Function)(Host&, Args...)>
struct Guard<Function> {
  static inline EntryRecord record{};

  static Result call(Args... args) noexcept {
    Host* host = Host::current();
    if (host == nullptr) return Outcome<Result>::failed(kBadParameterErr);
    if (!host->refusal().admits(record)) return Outcome<Result>::failed(kSPCanceledByHostError);
    return run(*host, args...);
  }

  // For an entry whose result can't tell a failure: neither counted nor refused.
  static Result callUncounted(Args... args) noexcept {
    Host* host = Host::current();
    return host == nullptr ? Result{} : run(*host, args...);
  }

 private:
  static Result run(Host& host, Args... args) noexcept {
    try {
      return Function(host, args...);
    } catch (const std::bad_alloc&) {
      return Outcome<Result>::failed(kOutOfMemoryErr);
    } catch (...) {
      return Outcome<Result>::failed(kSPExceptionError);
    }
  }

 public:
  using ResultType = Result;
};

// Lists the entries of one suite while its table is filled, in the order of the table.
class SuiteEntries {
 public:
  explicit SuiteEntries(const char* suite) : suite_(suite) {}

  template <auto Function>
  auto add(const char* name) {
    using Result = typename Guard<Function>::ResultType;
    static_assert(std::is_same_v<Result, AIErr> || std::is_pointer_v<Result>, "use addUncounted");
    list(Guard<Function>::record, name, true);
    return &Guard<Function>::call;
  }

  template <auto Function>
  auto addUncounted(const char* name) {
    list(Guard<Function>::record, name, false);
    return &Guard<Function>::callUncounted;
  }

  SuiteOffer offer(std::int32_t version, const void* table) const {
    return {suite_, version, table, entries_};
  }

 private:
  void list(EntryRecord& record, const char* name, bool refusable) {
    record = {suite_, name, refusable};
    entries_.push_back(&record);
  }

  const char* suite_;
  std::vector<EntryRecord*> entries_;
};

}  // namespace host
