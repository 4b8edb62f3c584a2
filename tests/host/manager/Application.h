// An application with widgets for tests, in a given theme.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>

#include "Theme.h"

inline void ensureApplication() {
  static int argc = 1;
  static char name[] = "test";
  static char* argv[] = {name, nullptr};
  static thread_local const QApplication application(argc, argv);
}

class WidgetTest : public testing::Test {
 protected:
  WidgetTest() {
    ensureApplication();
    host::setTheme(host::Theme::Light);
  }
};
