// The two dialogs of line types, with a user at mouse and keyboard.
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <functional>

#include "CutNewLineTypeDialog.h"
#include "CutPreferencesDialog.h"
#include "LineTypeFiles.h"
#include "LineTypeTexts.h"
#include "LoadCustomLineTypes.h"
#include "ParseLineType.h"
#include "ToolkitPlugin.h"

namespace Vandrell::Corvane {
namespace {

using Names = std::vector<std::string>;
constexpr int kGroups = 0, kTypes = 1;  // the lists, by their order

class LineTypeDialogs : public LineTypeFiles {
 protected:
  LineTypeDialogs() {
    qRVADM::SetToolkitPlugin(host.addPlugin("test", scratch.file("test.bundle")).handle);
    WriteStandard(FileOf("Standard", {"Through Cut", "Kiss Cut", "Crease"}));
  }
  ~LineTypeDialogs() override { qRVADM::SetToolkitPlugin(nullptr); }

  // What the user does in the next dialog that comes up, beginning when it is there.
  void Next(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, &hands, [act] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
      act(*dialog);
    });
  }
  // True if OK ended the dialog.
  bool Prefer(const std::function<void(QDialog&)>& act) {
    Next(act);
    return !CutPreferencesDialog().IsCancelled();
  }
  // The user types a name and presses Return, and Escape if that did not do.
  void TypeName(const std::string& name) {
    Next([name](QDialog& dialog) {
      auto* const edit = dialog.findChild<QLineEdit*>();
      edit->clear();
      QTest::keyClicks(edit, QString::fromStdString(name));
      QTest::keyClick(edit, Qt::Key_Return);
      if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  }

  static QListWidget& List(const QDialog& dialog, int index) {
    return *dialog.findChildren<QListWidget*>()[index];
  }
  // The rows to be seen, those without a tick in parentheses.
  static Names Rows(const QDialog& dialog) {
    const QListWidget& list = List(dialog, kTypes);
    Names rows;
    for (int row = 0; row < list.count(); ++row) {
      if (list.isRowHidden(row)) continue;
      const std::string text = list.item(row)->text().toStdString();
      rows.push_back(list.item(row)->checkState() == Qt::Checked ? text : "(" + text + ")");
    }
    return rows;
  }
  Names CustomNames() const {
    LineTypeGroup group;
    LoadCustomLineTypes(group, true);
    return NamesOf(group.types);
  }

  QObject hands;
};

TEST_F(LineTypeDialogs, ANameIsAcceptedOrTheUserIsToldWhyNot) {
  const std::string fits(31, 'x');
  const struct {
    std::string old, typed, result, alert;
  } rows[] = {{"", "Custom", "Custom", ""},
              {"", "", "", "Please specify a name for the new line type."},
              {"", fits, fits, ""},
              {"", fits + "y", "", "The name of your new line type can not be longer than 31 characters."},
              {"", "Taken", "", "The name of your new line type already exists, please specify another one."},
              {"Taken", "Taken", "Taken", ""},
              {"Mine", "Taken", "Mine",
               "The name of your new line type already exists, please specify another one."}};
  for (const auto& row : rows) {
    LineType type = row.old.empty() ? LineType() : *ParseLineType(LineTypeJSON(row.old));
    const std::size_t alerts = host.alerts().size();
    TypeName(row.typed);
    const CutNewLineTypeDialog dialog(&type, [](const std::string& name) { return name == "Taken"; });
    EXPECT_EQ(type.name.as_UTF8(), row.result) << row.typed;
    ASSERT_EQ(host.alerts().size(), alerts + (row.alert.empty() ? 0 : 1)) << row.typed;
    if (!row.alert.empty()) {
      EXPECT_EQ(host.alerts().back().text, row.alert);
    }
  }
}

TEST_F(LineTypeDialogs, APickedColorBecomesAnRGBSpotColorByOKAlone) {
  host.pickRGBColor = [](const std::string&, AIRGBColor& color) {
    color = {0, 65535, 32768};
    return true;
  };
  for (const bool keeps : {true, false}) {
    LineType type = *ParseLineType(R"({"name":"A","isCustomDataModel":false,"color":{"kind":6}})");
    Next([keeps](QDialog& dialog) {
      const QLineEdit* const edit = dialog.findChild<QLineEdit*>();
      QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        edit->geometry().bottomLeft() + QPoint(15, 20));
      QTest::keyClick(&dialog, keeps ? Qt::Key_Return : Qt::Key_Escape);
    });
    const CutNewLineTypeDialog dialog(&type, [](const std::string&) { return false; });
    ASSERT_EQ(type.isCustomDataModel, keeps);
    if (!keeps) continue;
    EXPECT_EQ(type.customColor.kind, kCustomThreeColor);
    EXPECT_EQ(type.customColor.flag, kCustomSpotColor);
    EXPECT_EQ(type.customColor.c.rgb.blue, 32768 / 65535.0);
  }
}

TEST_F(LineTypeDialogs, TicksAreStoredByOKAlone) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_EQ(Shown("Standard"), "none stored");
    Prefer([key](QDialog& dialog) {
      EXPECT_EQ(Rows(dialog), (Names{"Through Cut", "Kiss Cut", "Crease"}));
      QListWidget& list = List(dialog, kTypes);
      QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                        list.visualItemRect(list.item(1)).center());
      QTest::keyClick(list.viewport(), Qt::Key_Space);
      EXPECT_EQ(Rows(dialog), (Names{"Through Cut", "(Kiss Cut)", "Crease"}));
      QTest::keyClick(&dialog, key);
    });
  }
  EXPECT_EQ(Shown("Standard"), "Through Cut|Crease");
}

TEST_F(LineTypeDialogs, WhatWasNotReadIsNotReplaced) {
  WriteCustom(FileOf("Custom", {"A"}));
  const std::string before = ReadCustom();
  WriteStandard("no JSON");
  EXPECT_TRUE(Prefer([](QDialog& dialog) {
    EXPECT_EQ(List(dialog, kGroups).count() + List(dialog, kTypes).count(), 0);
    QTest::keyClick(&dialog, Qt::Key_Return);
  }));
  EXPECT_EQ(host.alerts().back().text, kDefinitionFileCorruptText);
  EXPECT_EQ(ReadCustom(), before);
  WriteStandard(R"({"Default":"none such","Groups":{}})");
  EXPECT_TRUE(Prefer([](QDialog& dialog) {
    EXPECT_EQ(Rows(dialog), Names());
    QTest::keyClick(&dialog, Qt::Key_Return);
  }));
  EXPECT_EQ(CustomNames(), Names{"A"});
  WriteStandard(FileOf("Custom", {}));  // a default that changes under the dialog's hands
  StoreShown("Custom", "A");
  EXPECT_TRUE(Prefer([](QDialog& dialog) {
    EXPECT_EQ(Rows(dialog), Names{"A"});
    QTest::keyClick(&dialog, Qt::Key_Return);
  }));
  EXPECT_EQ(Shown("Custom"), "A");
  EXPECT_FALSE(host.preferences().exists("Corvane/Line Types", "none such"));
  std::filesystem::remove(scratch.path / kCustomPath);
  EXPECT_TRUE(Prefer([&](QDialog& dialog) {
    WriteCustom(before);  // somebody else's
    QTest::keyClick(&dialog, Qt::Key_Return);
  }));
  EXPECT_EQ(CustomNames(), Names());
  EXPECT_EQ(scratch.read(std::string(kPresets) + "/CustomLayerDefinition-kept-1.json"), before);
}

}  // namespace
}  // namespace Vandrell::Corvane
