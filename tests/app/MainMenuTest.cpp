// SPDX-License-Identifier: MIT
#include "MainMenu.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class MainMenuTest : public testing::Test {
protected:
    [[nodiscard]] QStringList entries(std::size_t menu) const {
        QStringList texts;
        for (const auto* action : mainMenu.menus()[menu]->actions())
            texts.append(
                action->isSeparator() ? u"-"_s
                                      : action->text() + u'|' + action->shortcut().toString());
        return texts;
    }

    [[nodiscard]] QAction& edit(const QString& text) const {
        for (auto* action : mainMenu.menus()[1]->actions()) {
            if (action->text() == text)
                return *action;
        }
        throw std::runtime_error(text.toStdString());
    }

    int updateChecks = 0;
    int quits = 0;
    MainMenu mainMenu{
        {[this] { ++updateChecks; },
         [this] {
             ++quits;
         }}};
};

TEST_F(MainMenuTest, HasItsEntriesInOrder) {
    EXPECT_EQ(
        entries(0), (QStringList{u"Check for Updates…|"_s, u"-"_s, u"Quit Quorvane|Ctrl+Q"_s}));
    EXPECT_EQ(mainMenu.menus()[1]->title(), u"Edit"_s);
    EXPECT_EQ(
        entries(1),
        (QStringList{
            u"Undo|Ctrl+Z"_s,
            u"Redo|Ctrl+Shift+Z"_s,
            u"-"_s,
            u"Cut|Ctrl+X"_s,
            u"Copy|Ctrl+C"_s,
            u"Paste|Ctrl+V"_s,
            u"Select All|Ctrl+A"_s}));
}

TEST_F(MainMenuTest, IsNotShownInTheWindow) {
    QWidget window;
    mainMenu.attachTo(window);
    EXPECT_EQ(window.findChild<QMenuBar*>(), nullptr);
    window.show();
    window.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.findChild<QMenuBar*>(), nullptr);
}

TEST_F(MainMenuTest, QuitKeysWorkWithoutAShownMenu) {
    QWidget window;
    mainMenu.attachTo(window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    mainMenu.menus()[0]->actions().front()->trigger();
    EXPECT_EQ(updateChecks, 1);
}

TEST_F(MainMenuTest, EditEntriesActOnTheFocusedField) {
    QWidget window;
    auto* field = new QLineEdit(&window);
    auto* button = new QPushButton(&window);
    mainMenu.attachTo(window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    QTest::keyClicks(field, u"now"_s);
    edit(u"Select All"_s).trigger();
    EXPECT_EQ(field->selectedText(), u"now"_s);
    edit(u"Cut"_s).trigger();
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(QApplication::clipboard()->text(), u"now"_s);
    edit(u"Undo"_s).trigger();
    EXPECT_EQ(field->text(), u"now"_s);
    edit(u"Redo"_s).trigger();
    EXPECT_EQ(field->text(), QString());
    edit(u"Paste"_s).trigger();
    EXPECT_EQ(field->text(), u"now"_s);
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field->text(), QString());
    button->setFocus();
    edit(u"Paste"_s).trigger();
    EXPECT_EQ(field->text(), QString());
}

} // namespace
} // namespace quorvane
