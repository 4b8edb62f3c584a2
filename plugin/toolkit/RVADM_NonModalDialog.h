// A dialog that stays beside the document, in a panel of the host's.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "AITypes.h"
#include "RVADM_Dialog.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

class QAIPaletteWidget;
class RVADM_Menu;

constexpr int kResizablePanel = 5;  // the style of a panel that the user may resize

// What the host tells OnWindowEvent.
enum WindowEvent : int {
  kPanelResized = 1,
  kPanelStateChanged = 4,
  kPanelShown = 5,
  kPanelHidden = 6,
};

// The plug-in's constructor calls Create. Sizes are pixels of the dialog. A dialog whose panel the host
// refused has no items, and what it asks of the panel has no effect. Hooks may delete the dialog.
class RVADM_NonModalDialog : public QWidget, public RVADM_Dialog {
  Q_OBJECT

 public:
  RVADM_NonModalDialog();
  ~RVADM_NonModalDialog() override;

  // Makes the panel, hidden, and the items. `title`: English, shown in translation; the host knows the panel
  // by it. `hasStates`: the panel has two, with a button that leads from one to the other. `iconId`: resource
  // id, or 0.
  void Create(const char* title, int style, bool hasStates, int iconId);
  void SetMinimumWidth(int width);
  void SetMaximumWidth(int width);
  void SetMinimumHeight(int height);
  void SetVerticalStep(int step);  // of the height, as the user changes it
  void Show(bool show);
  bool IsShown() const;
  void SetEnabled(bool enabled);
  void SetFlyoutMenu(AIPanelFlyoutMenuRef menuRef);  // not owned
  RVADM_Menu* GetMenu() { return menu.get(); }       // null unless the base's CreateItems was called

  QWidget* GetWidget() override { return this; }
  void GetLocalRect(ADMRect* rect) override;
  void SetLocalRect(const ADMRect& rect) override;
  void CreateItems() override;  // makes the flyout menu
  void SetTitle(const char* title, bool localize) override;
  void GetTitle(char* buffer, int size) override;
  // Within kPanelShown and kPanelHidden the panel gets the size a little later. A layout that asks for
  // another size each time it runs is not listened to after a while.
  void SetSize(int width, int height) override;
  const ADMDialogMetrics& GetMetrics() override;
  void GetBoundsRect(ADMRect* bounds) override;  // of the panel, from (0, 0)
  void Update() override;
  bool IsResizable() override;
  void Init() override;
  void OnWindowEvent(int event) override;  // a WindowEvent; to be called by those that override it
  RVADM_Item* GetSenderItem() override;

  // Hooks of palettes; they do nothing here.
  virtual void OnCreateItems();
  virtual void SpareNonModalHook();
  virtual void OnFlyoutOpening();  // just before the menu opens

 public Q_SLOTS:
  RVADM_DIALOG_SLOTS(RVADM_Dialog)

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  static AIErr OnSize(AIPanelRef panel);
  static AIErr OnVisibility(AIPanelRef panel, AIBoolean isVisible);
  static AIErr OnState(AIPanelRef panel);
  static AIErr OnFlyoutSelection(AIPanelRef panel, std::uint32_t itemID);
  static AIErr OnFlyout(AIPanelRef panel);

  AIErr MakePanel(const char* title, int style, bool hasStates);
  void StandInPanel();
  void PlacePanel();
  QSize PanelSize() const;  // in pixels; (0, 0) without one
  bool ComesToRest();
  void LayOutLater();
  void LayOutNow();
  bool OnTimer(int timer);

  AIPanelRef panel = nullptr;                // owned; null if the host refused it
  QPointer<QAIPaletteWidget> paletteWidget;  // owned, or gone with the host's view
  std::unique_ptr<RVADM_Menu> menu;
  int focusTimer = 0;  // these are timers of Qt's; 0: none
  int sizeTimer = 0;
  AISize pendingSize{0, 0};  // for the panel when `sizeTimer` fires, in the host's units
  bool inVisibilityCallback = false;
  bool layoutIsPosted = false;
  int resizesInARow = 0;  // that layouts asked for, with no pause between
  QElapsedTimer sinceResize;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
