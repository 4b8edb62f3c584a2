// The files that define line types: what is read, what is left out, and what is written.
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "LineTypeFiles.h"
#include "LineTypeTexts.h"
#include "LoadCustomLineTypes.h"
#include "LoadStandardLineTypes.h"
#include "LoadVisibleLineTypes.h"
#include "ParseLineType.h"
#include "PresetsFolder.h"
#include "WriteCustomLineTypes.h"

namespace Vandrell::Corvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class DefinitionFiles : public LineTypeFiles {
 protected:
  // Reads the custom file, told of nothing.
  Names CustomNames(bool expected = true) {
    LineTypeGroup group;
    EXPECT_EQ(LoadCustomLineTypes(group, true), expected);
    return NamesOf(group.types);
  }
  // A group of names as the user would have made them.
  static LineTypeGroup GroupOf(const Names& names) {
    LineTypeGroup group;
    for (const std::string& name : names) {
      group.types.push_back(*ParseLineType(LineTypeJSON("x")));
      group.types.back().name = ai::UnicodeString(name);
    }
    return group;
  }
  Names FilesInPresets() const {
    Names files;
    for (const auto& entry : fs::directory_iterator(scratch.path / kPresets)) {
      files.push_back(entry.path().filename());
    }
    std::sort(files.begin(), files.end());
    return files;
  }
};

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(DefinitionFiles, AnElementIsALineTypeOrNothing) {
  const auto colored = [](const std::string& color) {
    return R"({"name":"A","isCustomDataModel":true,)" + color + "}";
  };
  const auto plain = [](const std::string& color) {
    return R"({"name":"A","isCustomDataModel":false,"color":)" + color + "}";
  };
  const std::string rgb = R"("customColor":{"kind":1,"flag":1,"rgb":[1,0,0.5]})";
  const std::pair<std::string, bool> elements[] = {
      {LineTypeJSON("A"), true},
      {R"({"NAME":"A","IsCustomDataModel":"1 ",)" + rgb + "}", true},
      {R"({"name":5,"isCustomDataModel":0,"color":{"kind":"6"}})",
       true},  // a number as text and the other way
      {R"({"name":"A","name":"","isCustomDataModel":true,"isCustomDataModel":"x",)" + rgb + "}", true},
      {R"({"name":"A","isCustomDataModel":true,"color":{"kind":6}})", false},
      {R"({"name":"A","isCustomDataModel":false,)" + rgb + "}", false},
      {R"({"name":"A","isCustomDataModel":"yes",)" + rgb + "}", false},
      {R"({"name":"A",)" + rgb + "}", false},
      {R"({"name":"","isCustomDataModel":true,)" + rgb + "}", false},
      {colored(R"("customColor":{"kind":1,"flag":"-32768","rgb":[0,0,0,"1"]})"), true},
      {colored(R"("customColor":{"kind":2,"flag":0,"Lab":[50,-200,1e5]})"), true},
      {colored(R"("customColor":{"kind":1,"flag":32768,"rgb":[0,0,0]})"), false},
      {colored(R"("customColor":{"kind":0,"flag":0,"cmyk":[0,0,0]})"), false},
      {colored(R"("customColor":{"kind":2,"flag":0,"lab":[0,0,"nan"]})"), false},
      {colored(R"("customColor":{"kind":3,"flag":0})"), false},
      {plain(R"({"KIND":1,"CMYK":["0",1,0.5,"2.5e-1"]})"), true},
      {plain(R"({"kind":6,"kind":1})"), true},  // the first counts
      {plain(R"({"kind":6.0})"), false},
      {plain(R"({"kind":7})"), false},
      {plain(R"({"kind":3,"custom":{"kind":0,"flag":1,"cmyk":[0,0,0,0]}})"), false},
      {plain(R"({"kind":1,"cmyk":[0,0,0,0,"x"]})"), false},
      {plain(R"({"kind":5,"rgb":[0,0,1e999]})"), false},
      {"[1]", false},
      {"", false},
      {Repeated("{\"name\":", 1000000), false}};
  for (const auto& [text, isType] : elements) {
    EXPECT_EQ(ParseLineType(text).has_value(), isType) << text.substr(0, 120);
  }
}

TEST_F(DefinitionFiles, TheStandardFileIsReadWholeOrNamedAsTheFault) {
  const std::string corrupt = kDefinitionFileCorruptText, one = LineTypeJSON("A");
  const struct {
    std::string text, error;
    std::vector<std::size_t> sizes;  // of the groups
  } files[] = {{R"({"GROUPS":{"S":[)" + one + R"(,{"name":"B"},)" + one + R"(],"T":{"x":)" + one +
                    R"(},"U":[]},"default":"S"})",
                "",
                {2, 1, 0}},
               {R"({"Default":"none such","Groups":{}})", "", {}},
               {R"({"Groups":{"S":[)" + one + "]}}", corrupt, {1}},
               {R"({"Default":"S","Groups":{"S":[)" + one + R"(],"T":[7]}})", corrupt, {1}},
               {R"({"Default":"S"})", corrupt, {}},
               {"", corrupt, {}},
               {Repeated("{\"Groups\":", 1000000), corrupt, {}}};
  for (const auto& file : files) {
    WriteStandard(file.text);
    std::vector<LineTypeGroup> groups;
    std::string defaultGroup, error;
    EXPECT_EQ(LoadStandardLineTypes(groups, defaultGroup, error), file.error.empty())
        << file.text.substr(0, 80);
    EXPECT_EQ(error, file.error);
    std::vector<std::size_t> sizes;
    for (const LineTypeGroup& group : groups) sizes.push_back(group.types.size());
    EXPECT_EQ(sizes, file.sizes) << file.text.substr(0, 80);
  }
  const fs::path path = scratch.path / "resources/CurveLayerDefinition.json";
  for (const bool isFolder : {false, true}) {
    fs::remove(path);
    if (isFolder) fs::create_directory(path);
    std::vector<LineTypeGroup> groups;
    std::string defaultGroup, error;
    EXPECT_FALSE(LoadStandardLineTypes(groups, defaultGroup, error));
    EXPECT_EQ(error, isFolder ? kDefinitionFileCorruptText : kDefinitionFileMissingText);
  }
}

TEST_F(DefinitionFiles, NamesComeBackAsTheyWereWritten) {
  const Names names{"A|B",
                    std::string("nul\0in it", 9),
                    "two\r\nlines\t",
                    "\"quoted\" \\ / {[",
                    "\u200f\u05e9\u05dc\u05d5\u05dd \u202eabc",
                    "\U0001F3A8",
                    Repeated("\u7dda", 31),
                    Repeated("\U0001F3A8", 15) + "x"};
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf(names)));
  EXPECT_EQ(CustomNames(), names);
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({})));
  EXPECT_EQ(CustomNames(), Names());
  EXPECT_EQ(ReadCustom(),
            "{\n    \"Version\": \"1\",\n    \"Groups\": {\n        \"Custom\": \"\"\n    }\n}\n");
  EXPECT_EQ(messages, Names());
}

TEST_F(DefinitionFiles, NamesOf32CharactersAreDroppedOrCutWithAWord) {
  const Names fits{Repeated("x", 31)};
  const std::pair<std::string, std::string> longNames[] = {
      {Repeated("x", 32), Repeated("x", 28) + "..."},
      {Repeated("\U0001F3A8", 16), Repeated("\U0001F3A8", 14) + "..."},
      {"x" + Repeated("\U0001F3A8", 16),
       "x" + Repeated("\U0001F3A8", 13) + "..."}};  // never half a character
  for (const auto& [name, cut] : longNames) {
    messages.clear();
    WriteCustom(FileOf("Custom", {fits[0], name}));
    EXPECT_EQ(CustomNames(), fits);
    LineTypeGroup group;
    EXPECT_TRUE(LoadCustomLineTypes(group, false));
    EXPECT_EQ(NamesOf(group.types), (Names{fits[0], cut}));
    EXPECT_EQ(messages, Names{kLineTypeNameTooLongText});
  }
}

TEST_F(DefinitionFiles, WhatCannotBeReadIsKeptBesideTheNewFile) {
  const std::string partly = R"({"Groups":{"Custom":[{"name":"lost"},)" + LineTypeJSON("A") + "]}}";
  WriteCustom(partly);
  EXPECT_EQ(CustomNames(), Names{"A"});
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"A"})));
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"A"}))) << "is nothing to keep";
  WriteCustom("{ no JSON");
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"B"})));
  EXPECT_EQ(FilesInPresets(), (Names{"CustomLayerDefinition-kept-1.json", "CustomLayerDefinition-kept-2.json",
                                     "CustomLayerDefinition.json"}));
  const std::string kept = std::string(kPresets) + "/CustomLayerDefinition-kept-";
  EXPECT_EQ(scratch.read(kept + "1.json"), partly);
  EXPECT_EQ(scratch.read(kept + "2.json"), "{ no JSON");
  EXPECT_EQ(CustomNames(), Names{"B"});
}

TEST_F(DefinitionFiles, AFileThatCannotBeWrittenWholeStaysAsItWas) {
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"A"})));
  const std::string before = ReadCustom();
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit usual{};
  getrlimit(RLIMIT_FSIZE, &usual);
  const rlimit small{256, usual.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_FALSE(WriteCustomLineTypes(GroupOf(Names(50, "B"))));
  setrlimit(RLIMIT_FSIZE, &usual);
  LineTypeGroup refused = GroupOf({"C"});
  refused.types[0].isCustomDataModel = false;
  refused.types[0].color = AIColor();
  refused.types[0].color.kind = kCustomColor;  // of no document
  EXPECT_FALSE(WriteCustomLineTypes(refused));
  EXPECT_EQ(messages, Names(2, kCustomFileNotWrittenText));
  EXPECT_EQ(ReadCustom(), before);
  EXPECT_EQ(FilesInPresets(), Names{"CustomLayerDefinition.json"}) << "nothing is left beside it";
}

TEST_F(DefinitionFiles, LinksAndPermissionsOfTheCustomFileStay) {
  const std::string elsewhere = scratch.write("elsewhere.json", FileOf("Custom", {"A"}));
  fs::permissions(elsewhere, fs::perms(0640));
  EXPECT_NE(PresetsFolder(), "");
  fs::create_symlink(elsewhere, scratch.path / kCustomPath);
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"B"})));
  EXPECT_TRUE(fs::is_symlink(scratch.path / kCustomPath));
  EXPECT_EQ(CustomNames(), Names{"B"});
  EXPECT_EQ(fs::status(elsewhere).permissions(), fs::perms(0640));
  fs::remove(elsewhere);
  EXPECT_EQ(CustomNames(false), Names()) << "a link to nowhere";
  EXPECT_TRUE(WriteCustomLineTypes(GroupOf({"C"})));
  EXPECT_TRUE(fs::is_regular_file(elsewhere));
}

TEST_F(DefinitionFiles, ThePresetsFolderIsOpenToAllUsersOrThereIsNone) {
  const mode_t mask = umask(077);
  EXPECT_EQ(PresetsFolder(), scratch.file(kPresets));
  umask(mask);
  for (const char* folder : {kPresets, "shared/Vandrell", "shared"}) {
    EXPECT_EQ(fs::status(scratch.path / folder).permissions(), fs::perms::all) << folder;
  }
  fs::remove_all(scratch.path / "shared/Vandrell");
  scratch.write("shared/Vandrell", "a file");
  EXPECT_EQ(PresetsFolder(), "");
  fs::remove(scratch.path / "shared/Vandrell");
  fs::create_symlink("nowhere", scratch.path / "shared/Vandrell");
  EXPECT_EQ(PresetsFolder(), "");
  EXPECT_EQ(CustomNames(false), Names());
  EXPECT_FALSE(WriteCustomLineTypes(GroupOf({"A"})));
  EXPECT_EQ(messages, Names{kPresetsFolderMissingText});
}

TEST_F(DefinitionFiles, ThePaletteListsWhatIsChosenOnceAndInOrder) {
  const std::string long31 = Repeated("x", 31), long32 = Repeated("y", 32);
  std::string file = FileOf("Standard", {"A", "B", long31, long32, "A"});
  file.insert(file.size() - 2, R"(,"More":[)" + LineTypeJSON("C") + "," + LineTypeJSON("B") + "]");
  WriteStandard(file);
  WriteCustom(FileOf("Custom", {"D", "A", "c"}));
  const auto visible = [] {
    std::vector<LineType> types;
    EXPECT_TRUE(LoadVisibleLineTypes(types));
    return NamesOf(types);
  };
  EXPECT_EQ(visible(), (Names{"A", "B", long31}));
  StoreShown("More", "B|C|none such");
  StoreShown("Custom", "C|A|D");
  EXPECT_EQ(visible(), (Names{"A", "B", long31, "C", "D"})) << "the case of names counts";
  StoreShown("Standard", "");
  EXPECT_EQ(visible(), (Names{"C", "B", "D", "A"}));
  WriteCustom("no JSON");
  EXPECT_EQ(visible(), (Names{"C", "B"}));
  WriteStandard("no JSON");
  std::vector<LineType> none;
  EXPECT_FALSE(LoadVisibleLineTypes(none));
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(messages, Names());
}

}  // namespace
}  // namespace Vandrell::Corvane
