// Windows and the views in them, as the operating system has them: what a plug-in's dialogs ask of it beyond
// Qt. The manager library provides these functions. Main thread only. A null view or window is taken
// everywhere and answered with null, false, 0, or by doing nothing.
#pragma once

class QWidget;
struct NativeView;    // a rectangle of a window
struct NativeWindow;  // a top-level window

// Good as long as the widget. Null for null.
NativeView* NativeViewOf(QWidget* widget);
// The window that the widget stands in. Null for null, and for one that was never given to the system.
NativeWindow* NativeWindowOf(QWidget* widget);

NativeWindow* MainWindow();  // the host's; null while there is none
void MakeKeyWindow(NativeWindow* window);
// Gives the keyboard to a view of the window. False if the view does not take it.
bool MakeFirstResponder(NativeWindow* window, NativeView* view);

NativeView* Superview(NativeView* view);
void AddSubview(NativeView* parent, NativeView* child);  // in front of those that are there
void RemoveFromSuperview(NativeView* view);
void SendToBack(NativeView* view);  // behind its siblings
// In pixels of the superview, y down.
void SetFrame(NativeView* view, double x, double y, double width, double height);

constexpr int kNoAnimation = 2;
void SetAnimationBehavior(NativeWindow* window, int behavior);

constexpr unsigned kResizableWindow = 8;
unsigned StyleMask(NativeWindow* window);
void SetStyleMask(NativeWindow* window, unsigned mask);

// The buttons of a window's title: 0 close, 1 minimise, 2 zoom.
constexpr int kStandardWindowButtons = 3;
void HideStandardWindowButton(NativeWindow* window, int button);
