#include "QtManager.h"

// Nothing in here asks the host through its suites.
void RVADMQtManager::QtManager::SetSPBasicSuite(const SPBasicSuite*) {}
