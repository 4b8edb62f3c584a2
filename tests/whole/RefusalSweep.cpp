#include "RefusalSweep.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <algorithm>
#include <set>

#include "DrawingReport.h"
#include "QtManager.h"

namespace host {
namespace {

using RVADMQtManager::QtManager;

// Where there are more calls than this, the next run without refusal is for the first of each kind only.
constexpr std::uint64_t kManyCalls = 200;

// So large that the samples of free space are few.
constexpr int kScale = 25;

// The host's own, that nothing could be painted, that there is no mark layer, and that there is no art.
constexpr std::optional<SPErr> kCodes[] = {kSPCanceledByHostError, kBadParameterErr, ErrorCode("!Add"),
                                           ErrorCode("!BND")};

// Whatever becomes of these calls, nobody may notice: what is only stored, shown, measured or given back.
constexpr const char* kOfNoAccount[] = {
    ":Dispose",       "AI Context Suite:", "AI Menu Suite:",     "AI Preference Suite:Put",
    ":Invalidate",    "AI Panel Suite:",   ":InvalAnnotation",   ":SetToolInfoVarValues",
    ":RealToString",  ":SetCursor",        ":SetSelectedTool",   "AI Annotator Drawer Suite:",
    ":SetSwatchName", ":GetUserData",      ":GetLayerIsTemplate"};
constexpr const char* kGivenBack[] = {":Dispose", ":Unlink"};
// Without these nothing is drawn as it was meant.
constexpr const char* kOfAccount[] = {":NewArt", "Style Suite:SetPathStyle", ":ReorderArt",
                                      ":NewCustomColor"};

template <typename List>
bool isAmong(const std::string& call, const List& parts) {
  return std::any_of(std::begin(parts), std::end(parts),
                     [&](const char* part) { return call.find(part) != std::string::npos; });
}

// What a run came to.
struct Run {
  std::optional<SPErr> answer;
  std::vector<std::string> said;
  std::string saved;
  std::string customFile;
  std::string shownTypes;  // of the group "Standard", as stored

  bool operator==(const Run& other) const {
    return answer == other.answer && said == other.said && saved == other.saved &&
           customFile == other.customFile;
  }
};

class Sweeper {
 public:
  explicit Sweeper(const Sweep& sweep) : row(sweep), world(pathsAndText(kScale)) {
    EXPECT_EQ(world.load(), "");
    world.open();
    before = world.saved();
  }

  void all() {
    run({});  // what is made once a process is there from now on
    restore();
    const std::uint64_t first = refusal().callCount();
    clean = run({});
    calls = refusal().callCount() - first;
    objects = world.ownedObjects();
    holds = world.heldSuites();
    restore();
    for (std::uint64_t n = 1; n <= calls; n += kStride) refuse([&] { refusal().armNth(n); });
    const std::set<std::string> each = entries;
    for (const std::string& entry : each) refuse([&] { EXPECT_EQ(refusal().add(entry), ""); });
    std::set<std::string> suites;
    for (const std::string& entry : each) suites.insert(entry.substr(0, entry.find(':')));
    for (const std::string& suite : suites) {
      refuse([&] {
        for (const std::string& entry : each) {
          if (entry.compare(0, suite.size() + 1, suite + ":") == 0) refusal().add(entry);
        }
      });
    }
  }

 private:
  Refusal& refusal() { return world.host.refusal(); }

  void prepare() {
    world.host.preferences() = Preferences();
    row.prepare(world);
    world.settle();
    world.answer.reset();
    steps = world.steps();
    prepared = world.saved();
    dialogs = QtManager::DialogCount();
  }

  Run run(const std::function<void()>& arm) {
    prepare();
    const std::size_t alerts = world.said().size();
    if (arm) arm();
    row.act(world);
    world.settle();
    refusal().clear();
    world.hands = nullptr;
    std::vector<std::string> said = world.said();
    said.erase(said.begin(), said.begin() + static_cast<std::ptrdiff_t>(alerts));
    return {world.answer, std::move(said), world.saved(), world.customFile(),
            world.host.preferences().string("Corvane/Line Types", "Standard").value_or("")};
  }

  void refuse(const std::function<void()>& arm) {
    const std::size_t refusals = refusal().refused().size();
    const Run refused = run(arm);
    const std::vector<std::string> which(refusal().refused().begin() + static_cast<std::ptrdiff_t>(refusals),
                                         refusal().refused().end());
    // What the host would not take back is the host's.
    for (const std::string& call : which) objects += isAmong(call, kGivenBack) ? 1U : 0U;
    if (which.empty()) return restore();  // fewer calls than at first
    const testing::ScopedTrace trace(__FILE__, __LINE__, std::string(row.name) + ": " + which.front());
    checkTold(which, refused);
    checkBalance();
    checkDocument(refused);
    restore();
    const bool isNew = entries.insert(which.front().substr(0, which.front().find(','))).second;
    if (!isNew && calls > kManyCalls) return;
    EXPECT_TRUE(run({}) == clean) << "the next time";
    EXPECT_EQ(world.ownedObjects(), objects);
    EXPECT_EQ(world.heldSuites(), holds);
    restore();
  }

  void checkTold(const std::vector<std::string>& which, const Run& refused) {
    const auto isOfNoAccount = [](const std::string& call) { return isAmong(call, kOfNoAccount); };
    if (std::all_of(which.begin(), which.end(), isOfNoAccount)) {
      EXPECT_TRUE(refused == clean);
    }
    const bool hasFailed = std::any_of(which.begin(), which.end(),
                                       [](const std::string& call) { return isAmong(call, kOfAccount); });
    const bool hasCode = refused.answer != clean.answer;
    if (hasCode) {
      EXPECT_THAT(kCodes, testing::Contains(refused.answer)) << refused.answer.value_or(0);
    }
    if (row.tells == Tells::Nothing || row.tells == Tells::Message) {
      EXPECT_FALSE(hasCode) << refused.answer.value_or(0);
    } else if (hasFailed) {
      EXPECT_TRUE(hasCode);
    }
    for (const std::string& text : refused.said) {
      const auto isText = [&text](const char* known) { return known != nullptr && text == known; };
      EXPECT_TRUE(isText(row.message) || isText(row.failure)) << text;
    }
    if (row.tells == Tells::CodeAndMessage) {
      EXPECT_EQ(refused.said.size(), hasCode ? 1U : 0U);
    } else if (row.tells == Tells::Message && hasFailed) {
      EXPECT_EQ(refused.said.size(), 1U);
    }
    for (const char* name : {"Custom", "Mine", "Yours"}) {
      EXPECT_EQ(refused.shownTypes.find(name), std::string::npos) << refused.shownTypes;
    }
    EXPECT_EQ(refused.customFile.find("\"name\": \"\""), std::string::npos) << refused.customFile;
  }

  void checkBalance() {
    EXPECT_EQ(world.host.contexts().depth(), 0U);
    EXPECT_EQ(QtManager::DialogCount(), dialogs);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }

  void checkDocument(const Run& refused) {
    auto again = readSvg(refused.saved, nullptr);
    ASSERT_TRUE(std::holds_alternative<SvgDrawing>(again));
    const SvgDrawing& reopened = std::get<SvgDrawing>(again);
    EXPECT_TRUE(writeSvg(reopened) == refused.saved);
    EXPECT_EQ(reportAsText(reopened, {}), reportAsText(world.drawing, {}));
    EXPECT_LE(world.steps(), steps + 1);
    if (world.steps() > steps) {
      EXPECT_TRUE(world.drawing.document->undo());
    }
    EXPECT_TRUE(world.saved() == prepared);
  }

  void restore() {
    while (world.steps() > 0 && world.drawing.document->undo()) continue;
    ASSERT_TRUE(world.saved() == before);
  }

  const Sweep& row;
  RefusalWorld world;
  Run clean;
  std::uint64_t calls = 0;
  std::set<std::string> entries;  // that were refused
  std::string before, prepared;   // the drawing
  std::size_t steps = 0, objects = 0;
  std::int32_t holds = 0;
  int dialogs = 0;
};

}  // namespace

void sweep(const Sweep& row) {
  Sweeper(row).all();
}

}  // namespace host
