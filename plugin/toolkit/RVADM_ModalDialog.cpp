#include "RVADM_ModalDialog.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QSizeGrip>
#include <QWindow>

#include "ADMDialogMetrics.h"
#include "CopyQString.h"
#include "FlagOfObject.h"
#include "Localize.h"
#include "NativeView.h"
#include "QtManager.h"
#include "RVADM_Item.h"
#include "SenderItem.h"
#include "UserInteraction.h"

namespace qRVADM {
namespace {

using RVADMQtManager::kIsDefaultProperty;
using RVADMQtManager::kIsModalButtonProperty;
using RVADMQtManager::QtManager;

// A layout that changes the size each time it runs is left alone after this many.
constexpr int kMostLayoutsInARow = 16;

// The dialog is counted before its Qt part stands.
QWidget* CountedDialogParent() {
  QtManager::IncreaseDialogCount();
  return QtManager::GetModalDialogParent(nullptr, true);
}

Qt::WindowFlags FlagsOf(bool resizable) {
  const Qt::WindowFlags flags = Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint;
  return resizable ? flags : flags | Qt::MSWindowsFixedSizeDialogHint;
}

// The dialog's window, which is given to the system for it; its children stay without windows of their own.
NativeWindow* MakeNativeWindow(QWidget& dialog) {
  const bool before = QCoreApplication::testAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
  QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
  if (dialog.window()->windowHandle() == nullptr && dialog.isWindow()) dialog.winId();
  QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings, before);
  return NativeWindowOf(&dialog);
}

// A dialog that is resized by its corner has no buttons in its title.
void MakeResizable(NativeWindow* window) {
  SetStyleMask(window, StyleMask(window) | kResizableWindow);
  for (int button = 0; button < kStandardWindowButtons; ++button) HideStandardWindowButton(window, button);
}

QPoint Centre(const QRect& rect) {
  return {(rect.left() + rect.right()) / 2, (rect.top() + rect.bottom()) / 2};
}

QRect Surroundings(const QWidget& dialog) {
  if (const QWidget* parent = dialog.parentWidget()) return parent->frameGeometry();
  if (dialog.isVisible()) return dialog.screen()->geometry();
  const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
  return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->geometry();
}

}  // namespace

RVADM_ModalDialog::RVADM_ModalDialog(bool resizable) : QDialog(CountedDialogParent(), FlagsOf(resizable)) {
  QtManager::MakeDVAStyleAware(this, true);
  setWindowModality(Qt::ApplicationModal);
  setSizeGripEnabled(resizable);
  if (!resizable) return;
  if (auto* grip = findChild<QSizeGrip*>()) {
    grip->ensurePolished();
    grip->resize(grip->sizeHint());
  }
}

// A field that loses the keyboard tells the dialog of it, which Qt's part alone could not hear.
RVADM_ModalDialog::~RVADM_ModalDialog() {
  hide();
  QtManager::DecreaseDialogCountLater(this);
}

int RVADM_ModalDialog::Run(const char* title, bool localize) {
  if (!IsUserInteractionAllowed()) return -1;
  SetTitle(title, localize);
  Init();
  NativeWindow* window = MakeNativeWindow(*this);
  SetAnimationBehavior(window, kNoAnimation);
  QWidget::show();
  if (isSizeGripEnabled()) MakeResizable(window);
  return exec();
}

void RVADM_ModalDialog::EndDialog(int result, bool skipCommit) {
  if (!skipCommit) OnCommit(result);
  ended = true;
  done(result);
}

void RVADM_ModalDialog::reject() {
  ended = false;
  if (cancelWidget) {
    cancelItem->Notify(kUserChanged);
    if (ended) return;
  }
  QDialog::reject();
}

void RVADM_ModalDialog::SetDefaultButton(RVADM_Item* item) {
  if (item == nullptr) return;
  auto* button = qobject_cast<QPushButton*>(item->GetWidget());
  if (button == nullptr) return;
  button->setDefault(true);
  button->setProperty(kIsDefaultProperty, true);
  button->setProperty(kIsModalButtonProperty, true);
}

void RVADM_ModalDialog::SetCancelButton(RVADM_Item* item) {
  cancelItem = item;
  cancelWidget = item == nullptr ? nullptr : item->GetWidget();
  auto* button = qobject_cast<QPushButton*>(cancelWidget.data());
  if (button != nullptr) button->setProperty(kIsModalButtonProperty, true);
}

void RVADM_ModalDialog::SetMinimumWidth(int width) {
  setMinimumWidth(width);
}

void RVADM_ModalDialog::SetMinimumHeight(int height) {
  setMinimumHeight(height);
}

// --- the frame ---

void RVADM_ModalDialog::GetLocalRect(ADMRect* rect) {
  *rect = {0, 0, width(), height()};
}

void RVADM_ModalDialog::SetLocalRect(const ADMRect& rect) {
  SetSize(Width(rect), Height(rect));
}

// Some window managers show the program's name in place of an empty title.
void RVADM_ModalDialog::SetTitle(const char* title, bool localize) {
  const QString shown = QString::fromUtf8(localize ? Localize(title) : title);
  setWindowTitle(shown.isEmpty() ? QStringLiteral(" ") : shown);
}

void RVADM_ModalDialog::GetTitle(char* buffer, int size) {
  CopyQString(buffer, windowTitle(), size > 0 ? static_cast<std::size_t>(size) : 0);
}

void RVADM_ModalDialog::CenterOnScreen() {
  const QRect frame = frameGeometry();
  move(frame.topLeft() + Centre(Surroundings(*this)) - Centre(frame));
}

void RVADM_ModalDialog::SetSize(int width, int height) {
  if (!layoutEnabled) sizeOfLayout = {width, height};
  if (!isSizeGripEnabled()) {
    setFixedSize(width, height);
  } else if (QWindow* window = windowHandle()) {
    window->resize(width, height);
  } else {
    resize(width, height);
  }
}

const ADMDialogMetrics& RVADM_ModalDialog::GetMetrics() {
  return ModalDialogMetrics();
}

void RVADM_ModalDialog::GetBoundsRect(ADMRect* bounds) {
  *bounds = ToADMRect(frameGeometry());
}

void RVADM_ModalDialog::Update() {
  update();
}

bool RVADM_ModalDialog::IsResizable() {
  return !windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint);
}

// --- layout ---

void RVADM_ModalDialog::Relayout() {
  if (!layoutEnabled || size() == lastSize) return;
  const bool comesToRest = ComesToRest();
  lastSize = size();
  if (!comesToRest) return;
  const QPointer<QObject> self(this);
  {
    const FlagOfObject layout(this, layoutEnabled, false);
    LayoutItems();
  }
  if (self && size() != lastSize) RelayoutLater();
}

// False if layouts have answered to their own change of size for too long.
bool RVADM_ModalDialog::ComesToRest() {
  layoutsInARow = size() == sizeOfLayout ? layoutsInARow + 1 : 0;
  return layoutsInARow <= kMostLayoutsInARow;
}

void RVADM_ModalDialog::RelayoutLater() {
  QCoreApplication::postEvent(this, new QResizeEvent(size(), lastSize));
}

void RVADM_ModalDialog::resizeEvent(QResizeEvent* event) {
  Relayout();
  QDialog::resizeEvent(event);
}

bool RVADM_ModalDialog::event(QEvent* event) {
  if (event->type() == RVADMQtManager::kThemeChangedEvent) OnUIThemeChanged(event);
  return QDialog::event(event);
}

// --- items ---

RVADM_Item* RVADM_ModalDialog::GetSenderItem() {
  return ItemOfSender(sender(), currentItem);
}

void RVADM_ModalDialog::NotifyItem(RVADM_Item* item, int code) {
  if (item != nullptr) item->Notify(code);
}

void RVADM_ModalDialog::CallHandler(Handler handler, RVADM_Item* item) {
  if (handler != nullptr && item != nullptr) (this->*handler)(item);
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_ModalDialog.cpp"
