// The strips at the edges of windows: menu, tool and status bars, tabs, titles of docks.
#pragma once

#include "Paint.h"

namespace host::look {

void barGround(const Paint& paint);
void menuBarItem(const Paint& paint);
void menuBarPanel(const Paint& paint);
void toolBar(const Paint& paint);
void toolBarHandle(const Paint& paint);
void toolBarSeparator(const Paint& paint);
void statusBarPanel(const Paint& paint);
void tabShape(const Paint& paint);
void tabBarBase(const Paint& paint);
void tabWidgetFrame(const Paint& paint);
void tabClose(const Paint& paint);
void dockTitle(const Paint& paint);
void dockFrame(const Paint& paint);

}  // namespace host::look
