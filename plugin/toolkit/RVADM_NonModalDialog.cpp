#include "RVADM_NonModalDialog.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QScreen>
#include <cmath>

#include "ADMDialogMetrics.h"
#include "AIError.h"
#include "AIPanel.h"
#include "AppContext.h"
#include "CopyUTF8.h"
#include "FlagOfObject.h"
#include "HandBackKeyboard.h"
#include "IAIUnicodeString.h"
#include "Localize.h"
#include "PanelIcon.h"
#include "QAIPaletteWidget.h"
#include "QtManager.h"
#include "RVADM_Menu.h"
#include "SenderItem.h"
#include "ToolkitPlugin.h"
#include "UIFactor.h"

namespace qRVADM {
namespace {

using RVADMQtManager::QtManager;

constexpr int kFirstMinimumWidth = 206;
constexpr int kFirstMinimumHeight = 100;
constexpr double kFirstPlace = 0.3819644876794621;  // of the screen, from its upper left corner

constexpr int kSizeDelay = 10;         // ms
constexpr int kDoubleClickSpare = 10;  // ms

// Layouts that ask for a size each time they run are heard this often, until there is a pause.
constexpr int kMostResizesInARow = 50;
constexpr qint64 kPause = 250;  // ms

// The dialog is counted before its Qt part stands.
QWidget* NoParentYet() {
  QtManager::IncreaseDialogCount();
  return nullptr;
}

AISize ToHost(int width, int height) {
  const double factor = UIFactor();
  return {width / factor, height / factor};
}

using GetLimit = AIErr (*AIPanelSuite::*)(AIPanelRef panel, AISize* size);
using SetLimit = AIErr (*AIPanelSuite::*)(AIPanelRef panel, AISize size);

void ChangeLimit(AIPanelRef panel, GetLimit get, SetLimit set, AIReal AISize::*side, int pixels) {
  AISize limit{};
  if (panel == nullptr || (sAIPanel->*get)(panel, &limit) != kNoErr) return;
  limit.*side = pixels / UIFactor();
  (sAIPanel->*set)(panel, limit);
}

// Calls `act` with the panel's dialog, in a context of the plug-in's own. The dialog may be gone afterwards.
template <typename Act>
AIErr WithDialog(AIPanelRef panel, const Act& act) {
  void* dialog = nullptr;
  const AIErr error = sAIPanel->GetUserData(panel, &dialog);
  if (error != kNoErr || dialog == nullptr) return error;
  const AppContext context;
  act(*static_cast<RVADM_NonModalDialog*>(dialog));
  return kNoErr;
}

}  // namespace

RVADM_NonModalDialog::RVADM_NonModalDialog() : QWidget(NoParentYet()) {}

RVADM_NonModalDialog::~RVADM_NonModalDialog() {
  setParent(nullptr);
  menu.reset();
  delete paletteWidget;
  if (panel != nullptr) RVADMQtManager::SharedResources::UnregisterPanelIcon(panel);
  if (panel != nullptr && sAIPanel != nullptr) sAIPanel->Destroy(panel);
  QtManager::DecreaseDialogCountLater(this);
}

// --- making ---

void RVADM_NonModalDialog::Create(const char* title, int style, bool hasStates, int iconId) {
  if (MakePanel(title, style, hasStates) != kNoErr) {
    panel = nullptr;
    return;
  }
  sAIPanel->SetSizeCallback(panel, &OnSize);
  sAIPanel->SetVisibilityCallback(panel, &OnVisibility);
  SetPanelIcon(panel, iconId);
  if (hasStates) sAIPanel->SetStateCallback(panel, &OnState);
  Init();
  if (paletteWidget) paletteWidget->setObjectName(QString::fromUtf8(title));
}

AIErr RVADM_NonModalDialog::MakePanel(const char* title, int style, bool hasStates) {
  if (sAIPanel == nullptr) return kSPSuiteNotFoundError;
  try {
    const ai::UnicodeString identifier(title);
    const ai::UnicodeString shownTitle(Localize(title));
    return sAIPanel->Create(ToolkitPlugin(), identifier.handle(), shownTitle.handle(), hasStates ? 2 : 1,
                            ToHost(kFirstMinimumWidth, kFirstMinimumHeight), style == kResizablePanel ? 1 : 0,
                            nullptr, this, &panel);
  } catch (const ai::Error& error) {
    return error.code;
  }
}

void RVADM_NonModalDialog::Init() {
  StandInPanel();
  setFocusPolicy(Qt::ClickFocus);
  RVADM_Dialog::Init();
  if (paletteWidget) {
    move(0, 0);
    paletteWidget->SetNativeFrame({QPoint(0, 0), PanelSize()});
    paletteWidget->show();
  }
  PlacePanel();
}

// A panel that does not give its view has a dialog that nobody sees.
void RVADM_NonModalDialog::StandInPanel() {
  QtManager::RegisterPalette(this);
  NativeView* view = nullptr;
  if (panel == nullptr || sAIPanel->GetPlatformView(panel, &view) != kNoErr || view == nullptr) return;
  paletteWidget = new QAIPaletteWidget(view);
  setParent(paletteWidget);
  paletteWidget->setAttribute(Qt::WA_AlwaysShowToolTips);
}

void RVADM_NonModalDialog::PlacePanel() {
  if (panel == nullptr) return;
  const QRect room = screen()->availableGeometry();
  const double factor = UIFactor();
  const int x = static_cast<int>(room.left() + room.width() * kFirstPlace);
  const int y = static_cast<int>(room.top() + room.height() * kFirstPlace);
  sAIPanel->Move(panel, static_cast<int>(x / factor), static_cast<int>(y / factor));
}

void RVADM_NonModalDialog::CreateItems() {
  menu = std::make_unique<RVADM_Menu>(this);
}

void RVADM_NonModalDialog::OnCreateItems() {}
void RVADM_NonModalDialog::SpareNonModalHook() {}
void RVADM_NonModalDialog::OnFlyoutOpening() {}

// --- the panel ---

void RVADM_NonModalDialog::SetMinimumWidth(int width) {
  ChangeLimit(panel, &AIPanelSuite::GetMinimumSize, &AIPanelSuite::SetMinimumSize, &AISize::width, width);
}

void RVADM_NonModalDialog::SetMaximumWidth(int width) {
  ChangeLimit(panel, &AIPanelSuite::GetMaximumSize, &AIPanelSuite::SetMaximumSize, &AISize::width, width);
}

void RVADM_NonModalDialog::SetMinimumHeight(int height) {
  ChangeLimit(panel, &AIPanelSuite::GetMinimumSize, &AIPanelSuite::SetMinimumSize, &AISize::height, height);
}

void RVADM_NonModalDialog::SetVerticalStep(int step) {
  if (panel != nullptr) sAIPanel->SetVerticalStep(panel, step / UIFactor());
}

void RVADM_NonModalDialog::Show(bool show) {
  if (panel != nullptr) sAIPanel->Show(panel, show ? 1 : 0);
}

bool RVADM_NonModalDialog::IsShown() const {
  AIBoolean isShown = 0;
  return panel != nullptr && sAIPanel->IsShown(panel, &isShown) == kNoErr && isShown != 0;
}

void RVADM_NonModalDialog::SetEnabled(bool enabled) {
  setEnabled(enabled);
}

void RVADM_NonModalDialog::SetFlyoutMenu(AIPanelFlyoutMenuRef menuRef) {
  if (panel == nullptr) return;
  sAIPanel->SetFlyoutMenu(panel, menuRef);
  sAIPanel->SetFlyoutSelectionCallback(panel, &OnFlyoutSelection);
  sAIPanel->SetFlyoutOpeningCallback(panel, &OnFlyout);
}

void RVADM_NonModalDialog::SetTitle(const char* title, bool localize) {
  if (panel == nullptr) return;
  try {
    sAIPanel->SetTitle(panel, ai::UnicodeString(localize ? Localize(title) : title).handle());
  } catch (const ai::Error&) {
    // A text that the host refuses leaves the title as it was.
  }
}

void RVADM_NonModalDialog::GetTitle(char* buffer, int size) {
  std::string title;
  try {
    ai::UnicodeString text;
    if (panel != nullptr && sAIPanel->GetTitle(panel, text.handle()) == kNoErr) title = text.as_UTF8();
  } catch (const ai::Error&) {
    title.clear();
  }
  CopyUTF8(buffer, title.c_str(), size > 0 ? static_cast<std::size_t>(size) : 0);
}

bool RVADM_NonModalDialog::IsResizable() {
  AISize least{};
  AISize most{};
  return panel != nullptr && sAIPanel->GetMinimumSize(panel, &least) == kNoErr &&
         sAIPanel->GetMaximumSize(panel, &most) == kNoErr &&
         (most.width > least.width || most.height > least.height);
}

QSize RVADM_NonModalDialog::PanelSize() const {
  AISize size{};
  if (panel == nullptr || sAIPanel->GetSize(panel, &size) != kNoErr) return {0, 0};
  const double factor = UIFactor();
  return {static_cast<int>(std::lround(size.width * factor)),
          static_cast<int>(std::lround(size.height * factor))};
}

void RVADM_NonModalDialog::GetBoundsRect(ADMRect* bounds) {
  *bounds = ToADMRect({QPoint(0, 0), PanelSize()});
}

void RVADM_NonModalDialog::GetLocalRect(ADMRect* rect) {
  GetBoundsRect(rect);
}

void RVADM_NonModalDialog::SetLocalRect(const ADMRect& rect) {
  SetSize(Width(rect), Height(rect));
}

const ADMDialogMetrics& RVADM_NonModalDialog::GetMetrics() {
  return NonModalDialogMetrics();
}

void RVADM_NonModalDialog::Update() {
  update();
}

// --- size ---

void RVADM_NonModalDialog::SetSize(int width, int height) {
  pendingSize = ToHost(width, height);
  if (inVisibilityCallback) {
    if (sizeTimer != 0) killTimer(sizeTimer);
    sizeTimer = startTimer(kSizeDelay);
    return;
  }
  if (panel == nullptr || (!layoutEnabled && !ComesToRest())) return;
  const QPointer<QObject> self(this);
  {
    const FlagOfObject layout(this, layoutEnabled, false);
    sAIPanel->SetSize(panel, pendingSize);
  }
  if (self) LayOutLater();
}

// False if layouts have gone on asking for sizes for too long.
bool RVADM_NonModalDialog::ComesToRest() {
  const bool paused = !sinceResize.isValid() || sinceResize.elapsed() > kPause;
  resizesInARow = paused ? 1 : resizesInARow + 1;
  sinceResize.start();
  return resizesInARow <= kMostResizesInARow;
}

// The panel told of its new size while no layout could run.
void RVADM_NonModalDialog::LayOutLater() {
  if (layoutIsPosted || PanelSize() == size()) return;
  layoutIsPosted = true;
  QMetaObject::invokeMethod(this, &RVADM_NonModalDialog::LayOutNow, Qt::QueuedConnection);
}

void RVADM_NonModalDialog::LayOutNow() {
  layoutIsPosted = false;
  if (PanelSize() == size()) return;
  const AppContext context;
  OnWindowEvent(kPanelResized);
}

void RVADM_NonModalDialog::OnWindowEvent(int event) {
  if (event != kPanelResized || !layoutEnabled) return;
  ADMRect bounds;
  GetBoundsRect(&bounds);
  const QRect frame = ToQRect(bounds);
  const QPointer<QObject> self(this);
  const FlagOfObject layout(this, layoutEnabled, false);
  resize(frame.size());
  LayoutItems();
  if (self && paletteWidget) paletteWidget->SetNativeFrame(frame);
}

// --- what the host tells ---

AIErr RVADM_NonModalDialog::OnSize(AIPanelRef panel) {
  return WithDialog(panel, [](RVADM_NonModalDialog& dialog) { dialog.OnWindowEvent(kPanelResized); });
}

AIErr RVADM_NonModalDialog::OnVisibility(AIPanelRef panel, AIBoolean isVisible) {
  return WithDialog(panel, [isVisible](RVADM_NonModalDialog& dialog) {
    const FlagOfObject callback(&dialog, dialog.inVisibilityCallback, true);
    dialog.OnWindowEvent(isVisible != 0 ? kPanelShown : kPanelHidden);
  });
}

AIErr RVADM_NonModalDialog::OnState(AIPanelRef panel) {
  return WithDialog(panel, [](RVADM_NonModalDialog& dialog) { dialog.OnWindowEvent(kPanelStateChanged); });
}

AIErr RVADM_NonModalDialog::OnFlyoutSelection(AIPanelRef panel, std::uint32_t itemID) {
  return WithDialog(panel, [itemID](RVADM_NonModalDialog& dialog) {
    if (dialog.menu != nullptr) dialog.menu->Select(itemID);
  });
}

AIErr RVADM_NonModalDialog::OnFlyout(AIPanelRef panel) {
  return WithDialog(panel, [](RVADM_NonModalDialog& dialog) { dialog.OnFlyoutOpening(); });
}

// --- what Qt tells ---

bool RVADM_NonModalDialog::event(QEvent* event) {
  if (event->type() == RVADMQtManager::kThemeChangedEvent) {
    OnUIThemeChanged(event);
    return true;
  }
  if (event->type() == QEvent::Timer && OnTimer(static_cast<QTimerEvent*>(event)->timerId())) return true;
  return QWidget::event(event);
}

bool RVADM_NonModalDialog::OnTimer(int timer) {
  if (timer != sizeTimer && timer != focusTimer) return false;
  killTimer(timer);
  const AppContext context;
  if (timer == sizeTimer) {
    sizeTimer = 0;
    if (panel != nullptr) sAIPanel->SetSize(panel, pendingSize);
  } else {
    focusTimer = 0;
    if (hasFocus() && QApplication::activePopupWidget() == nullptr) HandBackKeyboard();
  }
  return true;
}

// Soon after a click into the palette the host has the keyboard again, but not before the second click of a
// double click.
void RVADM_NonModalDialog::focusInEvent(QFocusEvent* event) {
  event->accept();
  if (focusTimer != 0) killTimer(focusTimer);
  focusTimer = 0;
  if (focusPolicy() == Qt::StrongFocus) return;
  focusTimer = startTimer(QApplication::doubleClickInterval() + kDoubleClickSpare);
}

void RVADM_NonModalDialog::keyPressEvent(QKeyEvent* event) {
  QWidget::keyPressEvent(event);
  if (event->key() != Qt::Key_Escape) return;
  event->accept();
  HandBackKeyboard();
}

RVADM_Item* RVADM_NonModalDialog::GetSenderItem() {
  return ItemOfSender(sender(), currentItem);
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_NonModalDialog.cpp"
