// The suites that have entries, one function each; called once, by the catalogue.
#pragma once

#include "SuiteCatalog.h"

namespace host {

SuiteOffer annotatorDrawerSuite();
SuiteOffer annotatorSuite();
SuiteOffer artSuite();
SuiteOffer artboardSuite();
SuiteOffer colorConversionSuite();
SuiteOffer contextSuite();
SuiteOffer customColorSuite();
SuiteOffer dataFilterSuite();
SuiteOffer documentSuite();
SuiteOffer documentViewSuite();
SuiteOffer filePathSuite();
SuiteOffer foldersSuite();
SuiteOffer hitTestSuite();
SuiteOffer layerSuite();
SuiteOffer matchingArtSuite();
SuiteOffer menuSuite();
SuiteOffer notifierSuite();
SuiteOffer paintStyleSuite();
SuiteOffer panelFlyoutMenuSuite();
SuiteOffer panelSuite();
SuiteOffer pathSuite();
SuiteOffer pathStyleSuite();
SuiteOffer preferenceSuite();
SuiteOffer realMathSuite();
SuiteOffer runtimeSuite();
SuiteOffer swatchGroupSuite();
SuiteOffer swatchListSuite();
SuiteOffer toolSuite();
SuiteOffer unicodeStringSuite();
SuiteOffer userInteractionSuite();
SuiteOffer userSuite();
SuiteOffer accessSuite();
SuiteOffer basicSuite();
SuiteOffer blocksSuite();
SuiteOffer pluginsSuite();

}  // namespace host
