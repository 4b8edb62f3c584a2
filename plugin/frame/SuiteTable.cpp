#include "SuiteTable.h"

#include <string_view>
#include <type_traits>

#include "AIAnnotator.h"
#include "AIAnnotatorDrawer.h"
#include "AIArt.h"
#include "AIArtboard.h"
#include "AIColorConversion.h"
#include "AIContext.h"
#include "AICustomColor.h"
#include "AIDataFilter.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "AIFilePath.h"
#include "AIFolders.h"
#include "AIHitTest.h"
#include "AILayer.h"
#include "AIMatchingArt.h"
#include "AIMenu.h"
#include "AINotifier.h"
#include "AIPaintStyle.h"
#include "AIPanel.h"
#include "AIPanelFlyoutMenu.h"
#include "AIPath.h"
#include "AIPathStyle.h"
#include "AIPreference.h"
#include "AIRealMath.h"
#include "AIRuntime.h"
#include "AISwatchGroup.h"
#include "AISwatchList.h"
#include "AITool.h"
#include "AIUnicodeString.h"
#include "AIUser.h"
#include "SPAccess.h"
#include "SPBasic.h"
#include "SPBlocks.h"
#include "SPPlugins.h"

namespace {

// A suite the plug-in holds or could hold, but never calls: nobody needs to know its table.
template <int row>
const void* sUncalledSuite = nullptr;

template <auto* variable>
constexpr SuitePointer PointerTo() {
  using Pointer = std::remove_pointer_t<decltype(variable)>;
  return {[]() -> const void* { return *variable; },
          [](const void* suite) { *variable = static_cast<Pointer>(suite); }};
}

template <auto* variable>
constexpr SuiteRow Called(const char* name, std::int32_t version) {
  return {name, version, PointerTo<variable>(), false};
}

template <int row>
constexpr SuiteRow Uncalled(const char* name, std::int32_t version) {
  return {name, version, PointerTo<&sUncalledSuite<row>>(), false};
}

// clang-format off
constexpr SuiteTable kInitialTable = {{
    Called<&sAINotifier>(kAINotifierSuite, kAINotifierSuiteVersion),
    Uncalled<1>("AI Action Manager Suite", 1005),
    Called<&sAIAnnotator>(kAIAnnotatorSuite, kAIAnnotatorSuiteVersion),
    Called<&sAIAnnotatorDrawer>(kAIAnnotatorDrawerSuite, kAIAnnotatorDrawerSuiteVersion),
    Uncalled<4>("AI Application Suite", 1003),
    Called<&sAIArtboard>(kAIArtboardSuite, kAIArtboardSuiteVersion),
    Called<&sAIArt>(kAIArtSuite, kAIArtSuiteVersion),
    Uncalled<7>("AI Art Set Suite", 1009),
    Uncalled<8>("AI Art Style Suite", 1008),
    Uncalled<9>("AI Art Style Parser Suite", 1009),
    Uncalled<10>("AI Assertion Suite", 1001),
    Uncalled<11>("AI Beautiful Strokes Suite", 1003),
    Uncalled<12>("AI Blend Style Suite", 1005),
    Uncalled<13>("AI Block Suite", 1004),
    Uncalled<14>("AI Cloud Document Suite", 1001),
    Uncalled<15>("AI Cursor Snap Suite", 1016),
    Called<&sAIColorConversion>(kAIColorConversionSuite, kAIColorConversionSuiteVersion),
    Uncalled<17>("AI Command Manager Suite", 1005),
    Called<&sAIContext>(kAIContextSuite, kAIContextSuiteVersion),
    Called<&sAICustomColor>(kAICustomColorSuite, kAICustomColorSuiteVersion),
    Called<&sAIDataFilter>(kAIDataFilterSuite, kAIDataFilterSuiteVersion),
    Called<&sAIDocument>(kAIDocumentSuite, kAIDocumentSuiteVersion),
    Called<&sAIDocumentView>(kAIDocumentViewSuite, kAIDocumentViewSuiteVersion),
    Uncalled<23>("AI Document List Suite", 1011),
    Uncalled<24>("AI Draw Art Suite", 1011),
    Uncalled<25>("AI Dynamic Symbol Suite", 1001),
    Uncalled<26>("AI Entry Suite", 1007),
    Uncalled<27>("AI Expand Suite", 1004),
    Uncalled<28>("AI File Format Suite", 1015),
    Uncalled<29>("AI Filter Suite", 1004),
    Uncalled<30>("AI Fixed Math Suite", 1004),
    Called<&sAIFolders>(kAIFoldersSuite, kAIFoldersSuiteVersion),
    Uncalled<32>("AI Gradient Suite", 1009),
    Uncalled<33>("AI Group Suite", 1005),
    Uncalled<34>("AI Hard Soft Suite", 1006),
    Called<&sAIHitTest>(kAIHitTestSuite, kAIHitTestSuiteVersion),
    Uncalled<36>("AI Image Optimization Suite", 1007),
    Called<&sAILayer>(kAILayerSuite, kAILayerSuiteVersion),
    Uncalled<38>("AI Live Effect Suite", 1007),
    Uncalled<39>("AI Mask Suite", 1005),
    Uncalled<40>("AI Mask Flattener Suite", 1005),
    Called<&sAIMatchingArt>(kAIMatchingArtSuite, kAIMatchingArtSuiteVersion),
    Uncalled<42>("AI MdMemory Suite", 1003),
    Called<&sAIMenu>(kAIMenuSuite, kAIMenuSuiteVersion),
    Uncalled<44>("AI Mesh Suite", 1006),
    Uncalled<45>("AI Mesh Patch Suite", 1003),
    Uncalled<46>("AI Mesh Segment Suite", 1003),
    Uncalled<47>("AI Mesh Vertex Suite", 1004),
    Uncalled<48>("AI Modal Parent Suite", 1002),
    Uncalled<49>("AI Name Space Suite", 1004),
    Uncalled<50>("Override AI Color Conversion Suite", 1008),
    Called<&sAIPaintStyle>(kAIPaintStyleSuite, kAIPaintStyleSuiteVersion),
    Called<&sAIPanel>(kAIPanelSuite, kAIPanelSuiteVersion),
    Called<&sAIPanelFlyoutMenu>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion),
    Called<&sAIPath>(kAIPathSuite, kAIPathSuiteVersion),
    Called<&sAIPathStyle>(kAIPathStyleSuite, kAIPathStyleSuiteVersion),
    Uncalled<56>("AI Pathfinder Suite", 1006),
    Uncalled<57>("AI PathConstruction Suite", 1005),
    Uncalled<58>("AI Pattern Suite", 1010),
    Uncalled<59>("AI Placed Suite", 1010),
    Uncalled<60>("AI Platform Memory Suite", 1003),
    Uncalled<61>("AI Plugin Suite", 1005),
    Uncalled<62>("AI Plugin Group Suite", 1006),
    Called<&sAIPreference>(kAIPreferenceSuite, kAIPreferenceSuiteVersion),
    Uncalled<64>("AI Random Suite", 1005),
    Uncalled<65>("AI Random Bell Curve Suite", 1004),
    Uncalled<66>("AI Raster Suite", 1010),
    Uncalled<67>("AI Rasterize Suite", 1012),
    Called<&sAIRealMath>(kAIRealMathSuite, kAIRealMathSuiteVersion),
    Uncalled<69>("AI Real Bezier Suite", 1004),
    Called<&sAIRuntime>(kAIRuntimeSuite, kAIRuntimeSuiteVersion),
    Uncalled<71>("AI Shape Construction Suite", 1008),
    Uncalled<72>("AI String Pool Suite", 1004),
    Called<&sAISwatchList>(kAISwatchListSuite, kAISwatchListSuiteVersion),
    Called<&sAISwatchGroup>(kAISwatchGroupSuite, kAISwatchGroupSuiteVersion),
    Uncalled<75>("AI Swatch Libraries Suite", 1008),
    Uncalled<76>("AI Symbol Suite", 1008),
    Uncalled<77>("AI Symbol Palette Suite", 1003),
    Uncalled<78>("AI SVG Filter Suite", 1004),
    Uncalled<79>("AI Tag Suite", 1004),
    Uncalled<80>("AI XML Document Suite", 1004),
    Uncalled<81>("AI XML Element Suite", 1004),
    Uncalled<82>("AI XML Named Node Map Suite", 1004),
    Uncalled<83>("AI XML Node Suite", 1005),
    Uncalled<84>("AI XML Node List Suite", 1003),
    Uncalled<85>("AI Text Frame Suite", 1004),
    Uncalled<86>("AIATE Paint Suite", 1003),
    Uncalled<87>("AI ATE Text Util Suite", 1004),
    Uncalled<88>("AI Legacy Text Conversion Suite", 1003),
    Uncalled<89>("AI Font Suite", 1006),
    Uncalled<90>("ATE ApplicationPaint Suite", 1),
    Uncalled<91>("ATE CompFont Suite", 1),
    Uncalled<92>("ATE CompFontClass Suite", 1),
    Uncalled<93>("ATE CompFontClassSet Suite", 1),
    Uncalled<94>("ATE CompFontComponent Suite", 1),
    Uncalled<95>("ATE CompFontSet Suite", 1),
    Uncalled<96>("ATE GlyphRun Suite", 1),
    Uncalled<97>("ATE GlyphRunsIterator Suite", 1),
    Uncalled<98>("ATE MojiKumi Suite", 1),
    Uncalled<99>("ATE MojiKumiSet Suite", 1),
    Uncalled<100>("ATE TextFrame Suite", 101),
    Uncalled<101>("ATE TextFramesIterator Suite", 1),
    Uncalled<102>("ATE TextLine Suite", 2),
    Uncalled<103>("ATE TextLinesIterator Suite", 1),
    Uncalled<104>("ATE TextResources Suite", 1),
    Uncalled<105>("ATE ApplicationTextResources Suite", 1),
    Uncalled<106>("ATE DocumentTextResources Suite", 101),
    Uncalled<107>("ATE VersionInfo Suite", 1),
    Uncalled<108>("ATE ArrayApplicationPaintRef Suite", 1),
    Uncalled<109>("ATE ArrayReal Suite", 1),
    Uncalled<110>("ATE ArrayBool Suite", 1),
    Uncalled<111>("ATE ArrayInteger Suite", 1),
    Uncalled<112>("ATE ArrayLineCapType Suite", 1),
    Uncalled<113>("ATE ArrayFigureStyle Suite", 1),
    Uncalled<114>("ATE ArrayLineJoinType Suite", 1),
    Uncalled<115>("ATE ArrayWariChuJustification Suite", 1),
    Uncalled<116>("ATE ArrayStyleRunAlignment Suite", 1),
    Uncalled<117>("ATE ArrayAutoKernType Suite", 1),
    Uncalled<118>("ATE ArrayBaselineDirection Suite", 1),
    Uncalled<119>("ATE ArrayLanguage Suite", 1),
    Uncalled<120>("ATE ArrayFontCapsOption Suite", 1),
    Uncalled<121>("ATE ArrayFontBaselineOption Suite", 1),
    Uncalled<122>("ATE ArrayFontOpenTypePositionOption Suite", 1),
    Uncalled<123>("ATE ArrayUnderlinePosition Suite", 1),
    Uncalled<124>("ATE ArrayStrikethroughPosition Suite", 1),
    Uncalled<125>("ATE ArrayParagraphJustification Suite", 1),
    Uncalled<126>("ATE ArrayArrayReal Suite", 1),
    Uncalled<127>("ATE ArrayBurasagariType Suite", 1),
    Uncalled<128>("ATE ArrayPreferredKinsokuOrder Suite", 1),
    Uncalled<129>("ATE ArrayKinsokuRef Suite", 1),
    Uncalled<130>("ATE ArrayMojiKumiRef Suite", 1),
    Uncalled<131>("ATE ArrayMojiKumiSetRef Suite", 1),
    Uncalled<132>("ATE ArrayTabStopsRef Suite", 1),
    Uncalled<133>("ATE ArrayLeadingType Suite", 1),
    Uncalled<134>("ATE ArrayFontRef Suite", 1),
    Uncalled<135>("ATE ArrayGlyphID Suite", 1),
    Uncalled<136>("ATE ArrayRealPoint Suite", 1),
    Uncalled<137>("ATE ArrayRealMatrix Suite", 1),
    Uncalled<138>("ATE CharFeatures Suite", 102),
    Uncalled<139>("ATE CharInspector Suite", 102),
    Uncalled<140>("ATE CharStyle Suite", 1),
    Uncalled<141>("ATE CharStyles Suite", 1),
    Uncalled<142>("ATE CharStylesIterator Suite", 1),
    Uncalled<143>("ATE Find Suite", 101),
    Uncalled<144>("ATE Font Suite", 1),
    Uncalled<145>("ATE Glyph Suite", 1),
    Uncalled<146>("ATE Glyphs Suite", 1),
    Uncalled<147>("ATE GlyphsIterator Suite", 1),
    Uncalled<148>("ATE Kinsoku Suite", 1),
    Uncalled<149>("ATE KinsokuSet Suite", 1),
    Uncalled<150>("ATE ParaFeatures Suite", 101),
    Uncalled<151>("ATE Paragraph Suite", 1),
    Uncalled<152>("ATE ParagraphsIterator Suite", 1),
    Uncalled<153>("ATE ParaInspector Suite", 101),
    Uncalled<154>("ATE ParaStyle Suite", 1),
    Uncalled<155>("ATE ParaStyles Suite", 1),
    Uncalled<156>("ATE ParaStylesIterator Suite", 1),
    Uncalled<157>("ATE Spell Suite", 102),
    Uncalled<158>("ATE Stories Suite", 1),
    Uncalled<159>("ATE Story Suite", 1),
    Uncalled<160>("ATE TabStop Suite", 1),
    Uncalled<161>("ATE TabStops Suite", 1),
    Uncalled<162>("ATE TabStopsIterator Suite", 1),
    Uncalled<163>("ATE TextRange Suite", 1),
    Uncalled<164>("ATE TextRanges Suite", 1),
    Uncalled<165>("ATE TextRangesIterator Suite", 1),
    Uncalled<166>("ATE TextRunsIterator Suite", 1),
    Uncalled<167>("ATE WordsIterator Suite", 1),
    Uncalled<168>("AI Timer Suite", 1005),
    Called<&sAITool>(kAIToolSuite, kAIToolSuiteVersion),
    Uncalled<170>("AI Toolbox Suite", 1007),
    Uncalled<171>("AI Transform Again Suite", 1004),
    Uncalled<172>("AI Transform Art Suite", 1003),
    Uncalled<173>("AI Undo Suite", 1009),
    Called<&sAIUser>(kAIUserSuite, kAIUserSuiteVersion),
    Uncalled<175>("AS User Interaction Suite", 4),
    Uncalled<176>("AI Array Suite", 1006),
    Uncalled<177>("AI Dictionary Suite", 1010),
    Uncalled<178>("AI Dictionary Iterator Suite", 1005),
    Uncalled<179>("AS Help Suite", 1),
    Uncalled<180>("AI UID Suite", 1008),
    Uncalled<181>("AI UIDREF Suite", 1008),
    Uncalled<182>("AI UID Pool Suite", 1007),
    Uncalled<183>("AI UID Utils Suite", 1009),
    Uncalled<184>("AI User Interface Theme Suite", 1002),
    Uncalled<185>("AI UUID Suite", 1003),
    Called<&sSPAccess>(kSPAccessSuite, kSPAccessSuiteVersion),
    Uncalled<187>("SP Adapters Suite", 3),
    Called<&sSPBasic>(kSPBasicSuite, kSPBasicSuiteVersion),
    Called<&sSPBlocks>(kSPBlocksSuite, kSPBlocksSuiteVersion),
    Uncalled<190>("SP Block Debug Suite", 2),
    Uncalled<191>("SP Caches Suite", 2),
    Uncalled<192>("SP Files Suite", 4),
    Uncalled<193>("SP Interface Suite", 2),
    Called<&sSPPlugins>(kSPPluginsSuite, kSPPluginsSuiteVersion),
    Uncalled<195>("SP Properties Suite", 2),
    Uncalled<196>("SP Runtime Suite", 6),
    Uncalled<197>("SP Strings Suite", 2),
    Uncalled<198>("SP Suites Suite", 2),
    Uncalled<199>("AI FO Conversion Suite", 1004),
    Uncalled<200>("AI Foreign Object Suite", 1004),
    Called<&sAIUnicodeString>(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion),
    Called<&sAIFilePath>(kAIFilePathSuite, kAIFilePathSuiteVersion),
    Uncalled<203>("AI Color Space Suite", 1007),
    Uncalled<204>("AI Isolation Mode", 1006),
    Uncalled<205>("ATE ArrayParagraphDirection Suite", 1),
    Uncalled<206>("ATE ArrayJustificationMethod Suite", 1),
    Uncalled<207>("ATE ArrayKashidas Suite", 1),
    Uncalled<208>("ATE ArrayDirOverride Suite", 1),
    Uncalled<209>("ATE ArrayDigitSet Suite", 1),
    Uncalled<210>("ATE ArrayDiacVPos Suite", 1),
    Uncalled<211>("ATE ArrayKashidaWidth Suite", 1),
    Uncalled<212>("ATE ArrayLine Suite", 1),
    Uncalled<213>("ATE ArrayComposerEngine Suite", 1),
    Uncalled<214>("AI Envelope Suite", 1004),
    Uncalled<215>("AI String Format Utils Suite", 1003),
    Uncalled<216>("AI CSXS Extension Suite", 1004),
}};
// clang-format on

constexpr bool Stands(std::size_t row, std::string_view name, std::int32_t version) {
  return kInitialTable[row].name == name && kInitialTable[row].version == version;
}

// A row that slipped in or out moves all behind it: these stand at the ends of the longest stretches.
static_assert(Stands(0, "AI Notifier Suite", 1004) && Stands(37, "AI Layer Suite", 1013));
static_assert(Stands(69, "AI Real Bezier Suite", 1004) && Stands(90, "ATE ApplicationPaint Suite", 1));
static_assert(Stands(138, "ATE CharFeatures Suite", 102) && Stands(169, "AI Tool Suite", 1019));
static_assert(Stands(188, "SP Basic Suite", 4) && Stands(202, "AI File Path Suite", 1007));
static_assert(Stands(216, "AI CSXS Extension Suite", 1004));

}  // namespace

SuiteTable sSuiteTable = kInitialTable;
