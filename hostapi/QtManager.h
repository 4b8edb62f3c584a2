// The manager library: what all plug-ins with dialogs share in one host process. On the main thread only.
#pragma once

struct SPBasicSuite;
class QColor;
class QObject;
class QWidget;

namespace RVADMQtManager {

// Type of the custom event that every widget gets when the brightness of the interface has changed.
constexpr int kThemeChangedEvent = 1456;

// Dynamic properties of widgets that the control style reads.
constexpr char kIsDefaultProperty[] = "_rvadm_isdefault";          // bool: a button with the default look
constexpr char kIsModalButtonProperty[] = "_rvadm_ismodalbutton";  // bool: one that closes a modal dialog
// QIcon: what a picture in a field shows while the field is active, and what it goes back to, which stands
// there only meanwhile.
constexpr char kActiveInputIconProperty[] = "_rvadm_activeinputicon";
constexpr char kInactiveInputIconProperty[] = "_rvadm_inactiveinputicon";

enum EControlColor : int {
  kControlBackground = 0,
};

class QtManager {
 public:
  // Called once by every plug-in before any other operation; not owned.
  static void SetSPBasicSuite(const SPBasicSuite* basic);

  // How many dialogs of plug-ins there are, palettes among them.
  static void IncreaseDialogCount();
  static void DecreaseDialogCount();  // never below 0
  // The same when `dialog`, which is being destroyed, is gone and the event loop, if one runs, has delivered
  // what was posted until then. Null: a dialog that is gone already.
  static void DecreaseDialogCountLater(QObject* dialog);
  static int DialogCount();

  // The widget to parent a modal dialog on: the window of `hint` if it is visible, else the modal dialog that
  // is up, else the host's window, else null. With `modal` false a modal dialog that is up does not count.
  static QWidget* GetModalDialogParent(QWidget* hint, bool modal);
  // Gives a top-level widget and all in it the host's look, now and after each change of brightness.
  // `followTheme` false: the colours of now, until it is called with true.
  static void MakeDVAStyleAware(QWidget* topLevel, bool followTheme);
  // To be called by the frame of a palette, before its items are made, with the widget that they stand in.
  // Lasts as long as the widget.
  static void RegisterPalette(QWidget* palette);
  // Does the widget stand in a registered palette, with no other window between? False for null.
  static bool IsOnNonModalDialog(const QWidget* widget);

  // Of the interface around the widget; null: of the host.
  static bool IsInDarkMode(const QWidget* widget);
  // From the palette of the widget; null: of the host.
  static QColor GetControlColor(const QWidget* widget, EControlColor color, bool enabled);
  // Takes over the host's brightness and sends kThemeChangedEvent to every widget of every top-level, but for
  // those that keep their colours: first in the host's window, then in the aware top-levels in the order in
  // which they became so, then elsewhere; in each of them children before their parents. Widgets that are
  // deleted meanwhile are left out. A call from within a handler does nothing more than the one under way.
  static void UpdateUIColorScheme();
};

class SharedResources {
 public:
  // The icons of a panel by resource id, for the panel's tab.
  static void RegisterPanelIcon(void* panel, int lightIconId, int darkIconId);
  static void UnregisterPanelIcon(void* panel);
  // A picture that all plug-ins share, as PNG bytes in `data`, which the caller frees with free(); their
  // number, or 0 if there is none of this id. `variant`: 1 for dark plus 2 for double resolution; set to the
  // one that was found.
  static int GetBuiltinResource(int id, int& variant, char*& data);
};

}  // namespace RVADMQtManager
