#include "Checks.h"

#include <QString>

namespace host {
namespace {

constexpr int kLongestName = 40;  // letters that are told of one

}  // namespace

std::string inQuotes(const std::string& name) {
  const QString told = QString::fromStdString(name);
  const bool fits = told.size() <= kLongestName;
  return "\u201C" + (fits ? name : told.left(kLongestName - 1).toStdString() + "\u2026") + "\u201D";
}

std::string where(const PreflightJob& job, const Tally& tally) {
  const std::string& name = job.document.art(tally.art.front())->name;
  return std::string(tally.art.size() == 1 ? ", " : ", the first ") +
         (name.empty() ? "" : inQuotes(name) + " ") + job.at(tally.first);
}

}  // namespace host
