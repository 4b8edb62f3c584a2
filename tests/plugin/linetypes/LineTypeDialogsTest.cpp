// The two dialogs of line types, with a user at mouse and keyboard.
#include <QAbstractButton>
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
    host.pickRGBColor = [this](const std::string&, AIRGBColor& color) {
      color = picked;
      return true;
    };
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
  // The user types a name and presses a key.
  void TypeName(const std::string& name, Qt::Key key) {
    Next([name, key](QDialog& dialog) {
      auto* const edit = dialog.findChild<QLineEdit*>();
      edit->clear();
      QTest::keyClicks(edit, QString::fromStdString(name));
      QTest::keyClick(edit, key);
      if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  }

  static QListWidget& List(const QDialog& dialog, int index) {
    return *dialog.findChildren<QListWidget*>()[index];
  }
  static QAbstractButton& Icon(const QDialog& dialog, const char* tip) {
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
      if (button->toolTip() == tip) return *button;
    }
    throw std::runtime_error(std::string("no button for ") + tip);
  }
  static void SelectGroup(const QDialog& dialog, const char* name) {
    QListWidget& list = List(dialog, kGroups);
    const QRect row = list.visualItemRect(list.findItems(name, Qt::MatchExactly).at(0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
  }
  static void ClickType(const QDialog& dialog, int row, bool twice = false) {
    QListWidget& list = List(dialog, kTypes);
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }
  static void ToggleType(const QDialog& dialog, int row) {
    ClickType(dialog, row);
    QTest::keyClick(List(dialog, kTypes).viewport(), Qt::Key_Space);
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
  AIRGBColor picked{0, 65535, 32768};
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
    TypeName(row.typed, Qt::Key_Return);
    const CutNewLineTypeDialog dialog(&type, [](const std::string& name) { return name == "Taken"; });
    EXPECT_EQ(type.name.as_UTF8(), row.result) << row.typed;
    ASSERT_EQ(host.alerts().size(), alerts + (row.alert.empty() ? 0 : 1)) << row.typed;
    if (!row.alert.empty()) {
      EXPECT_EQ(host.alerts().back().text, row.alert);
    }
  }
}

TEST_F(LineTypeDialogs, AColorBecomesAnRGBSpotColor) {
  LineType type;
  Next([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "Custom");
    EXPECT_EQ(dialog.grab().toImage().pixelColor(dialog.findChild<QLineEdit*>()->geometry().bottomLeft() +
                                                 QPoint(15, 20)),
              QColor(Qt::red));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  const auto free = [](const std::string&) { return false; };
  { const CutNewLineTypeDialog dialog(&type, free); }
  EXPECT_TRUE(type.isCustomDataModel);
  EXPECT_EQ(type.customColor.kind, kCustomThreeColor);
  EXPECT_EQ(type.customColor.flag, kCustomSpotColor);
  EXPECT_EQ(type.customColor.c.rgb.red, 1);
  for (const bool keeps : {true, false}) {
    type.isCustomDataModel = false;
    type.color = AIColor();
    type.color.kind = kThreeColor;
    Next([keeps](QDialog& dialog) {
      const QLineEdit* const edit = dialog.findChild<QLineEdit*>();
      QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        edit->geometry().bottomLeft() + QPoint(15, 20));
      QTest::keyClick(&dialog, keeps ? Qt::Key_Return : Qt::Key_Escape);
    });
    const CutNewLineTypeDialog dialog(&type, free);
    EXPECT_EQ(type.isCustomDataModel, keeps);
    if (keeps) {
      EXPECT_EQ(type.customColor.c.rgb.blue, 32768 / 65535.0);
    }
  }
}

TEST_F(LineTypeDialogs, TicksAreStoredByOKAlone) {
  StoreShown("Custom", "A|gone");
  WriteCustom(FileOf("Custom", {"A", "B"}));
  const auto act = [](QDialog& dialog, Qt::Key key) {
    EXPECT_EQ(Rows(dialog), (Names{"Through Cut", "Kiss Cut", "Crease"}));
    const int height = List(dialog, kTypes).height();
    EXPECT_FALSE(Icon(dialog, "New Custom Line Type").isVisible());
    ToggleType(dialog, 1);
    SelectGroup(dialog, "Custom");
    EXPECT_EQ(Rows(dialog), (Names{"A", "(B)"}));
    EXPECT_TRUE(Icon(dialog, "New Custom Line Type").isVisible());
    EXPECT_EQ(List(dialog, kTypes).height() + Icon(dialog, "New Custom Line Type").height(), height);
    ToggleType(dialog, 1);
    SelectGroup(dialog, "Standard");
    EXPECT_EQ(Rows(dialog), (Names{"Through Cut", "(Kiss Cut)", "Crease"}));
    EXPECT_EQ(List(dialog, kTypes).height(), height);
    ClickType(dialog, 2, true);  // nothing to edit
    QTest::keyClick(&dialog, key);
  };
  EXPECT_FALSE(Prefer([&](QDialog& dialog) { act(dialog, Qt::Key_Escape); }));
  EXPECT_EQ(Shown("Standard"), "none stored");
  EXPECT_EQ(Shown("Custom"), "A|gone");
  EXPECT_TRUE(Prefer([&](QDialog& dialog) { act(dialog, Qt::Key_Return); }));
  EXPECT_EQ(Shown("Standard"), "Through Cut|Crease");
  EXPECT_EQ(Shown("Custom"), "A|B");
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
