#include "RemarksDialog.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DrawingReport.h"

namespace host {
namespace {

constexpr int kWidth = 640;  // pixels of the interface
constexpr int kHeight = 360;
enum Column { kElement, kId, kLine, kReason };

QTreeWidgetItem* itemOf(const SvgRemark& remark) {
  auto* item = new QTreeWidgetItem;
  item->setText(kElement, QString::fromStdString(remark.element));
  item->setText(kId, QString::fromStdString(remark.id));
  item->setData(kLine, Qt::DisplayRole, static_cast<qulonglong>(remark.position.line));
  item->setText(kReason, QString::fromStdString(remark.reason));
  item->setToolTip(kReason, QString::fromStdString(remark.reason).toHtmlEscaped());
  item->setData(kElement, Qt::UserRole, QString::fromStdString(remarkLine(remark)));
  return item;
}

QTreeWidget* makeList(const std::vector<SvgRemark>& remarks) {
  auto* list = new QTreeWidget;
  list->setAccessibleName("Remarks");
  list->setHeaderLabels({"Element", "Id", "Line", "Reason"});
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  QList<QTreeWidgetItem*> items;
  for (const SvgRemark& remark : remarks) items << itemOf(remark);
  list->addTopLevelItems(items);
  for (const Column column : {kElement, kId, kLine}) list->resizeColumnToContents(column);
  if (!items.isEmpty()) list->setCurrentItem(items.front());
  list->clearSelection();
  return list;
}

// The selected remarks, a line each; all if none is selected.
void copy(const QTreeWidget& list) {
  const bool all = list.selectedItems().isEmpty();
  QString text;
  for (int i = 0; i < list.topLevelItemCount(); ++i) {
    const QTreeWidgetItem& item = *list.topLevelItem(i);
    if (all || item.isSelected()) text += item.data(kElement, Qt::UserRole).toString() + "\n";
  }
  QApplication::clipboard()->setText(text);
}

}  // namespace

void showRemarksDialog(const std::vector<SvgRemark>& remarks, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle("Remarks");
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(new QLabel("Of this drawing the following was not understood, or only assumed:"));
  QTreeWidget* list = makeList(remarks);
  layout->addWidget(list);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* copying = buttons->addButton("&Copy", QDialogButtonBox::ActionRole);
  layout->addWidget(buttons);
  QObject::connect(copying, &QPushButton::clicked, list, [list] { copy(*list); });
  auto* byKeys = new QAction(list);
  byKeys->setShortcut(QKeySequence::Copy);
  list->addAction(byKeys);
  QObject::connect(byKeys, &QAction::triggered, list, [list] { copy(*list); });
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  dialog.resize(kWidth, kHeight);
  dialog.exec();
}

}  // namespace host
