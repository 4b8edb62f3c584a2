// The process-wide suite pointers that every part of the plug-in calls the host through. The suite
// manager alone writes them; null while a suite is not held.
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

const AINotifierSuite* sAINotifier = nullptr;
const AIAnnotatorSuite* sAIAnnotator = nullptr;
const AIAnnotatorDrawerSuite* sAIAnnotatorDrawer = nullptr;
const AIArtboardSuite* sAIArtboard = nullptr;
const AIArtSuite* sAIArt = nullptr;
const AIColorConversionSuite* sAIColorConversion = nullptr;
const AIContextSuite* sAIContext = nullptr;
const AICustomColorSuite* sAICustomColor = nullptr;
const AIDataFilterSuite* sAIDataFilter = nullptr;
const AIDocumentSuite* sAIDocument = nullptr;
const AIDocumentViewSuite* sAIDocumentView = nullptr;
const AIFoldersSuite* sAIFolders = nullptr;
const AIHitTestSuite* sAIHitTest = nullptr;
const AILayerSuite* sAILayer = nullptr;
const AIMatchingArtSuite* sAIMatchingArt = nullptr;
const AIMenuSuite* sAIMenu = nullptr;
const AIPaintStyleSuite* sAIPaintStyle = nullptr;
const AIPanelSuite* sAIPanel = nullptr;
const AIPanelFlyoutMenuSuite* sAIPanelFlyoutMenu = nullptr;
const AIPathSuite* sAIPath = nullptr;
const AIPathStyleSuite* sAIPathStyle = nullptr;
const AIPreferenceSuite* sAIPreference = nullptr;
const AIRealMathSuite* sAIRealMath = nullptr;
const AIRuntimeSuite* sAIRuntime = nullptr;
const AISwatchListSuite* sAISwatchList = nullptr;
const AISwatchGroupSuite* sAISwatchGroup = nullptr;
const AIToolSuite* sAITool = nullptr;
const AIUserSuite* sAIUser = nullptr;
const SPAccessSuite* sSPAccess = nullptr;
const SPBasicSuite* sSPBasic = nullptr;
const SPBlocksSuite* sSPBlocks = nullptr;
const SPPluginsSuite* sSPPlugins = nullptr;
const AIUnicodeStringSuite* sAIUnicodeString = nullptr;
const AIFilePathSuite* sAIFilePath = nullptr;
