#include "RV_LOCALE.h"

#include "DateTimeTexts.h"
#include "FormatLocalized.h"
#include "ReverseLookup.h"

const RV_LOCALE kLocaleMethods = {"RV_LOCALE",     FormatLocalized, ReverseLookup,
                                  FormatDateShort, FormatDateLong,  FormatTimeShort,
                                  FormatTimeLong,  DefaultDate,     DefaultTime};

const RV_LOCALE* rvLocale = nullptr;
