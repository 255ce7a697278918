// SPDX-License-Identifier: MIT
#include <controls/LineEdit.h>
#include <support/ControlWindow.h>
#include <support/HeldPaste.h>
#include <support/UnreadableData.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QValidator>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class LineEditTest : public testing::Test {
protected:
    HeldPaste owner;
    ControlWindow window;
    LineEdit& field = window.add(new LineEdit(owner.reader()));

    LineEditTest() {
        EXPECT_TRUE(window.open());
        field.setFocus();
    }

    void type(const QString& text) { QTest::keyClicks(&field, text); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&field, key, modifiers);
    }

    void pasteText(const QString& text) {
        press(Qt::Key_V);
        owner.answer(text);
    }

    /// The menu over the field, as it opens.
    QMenu& menu() {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {}, field.mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&field, &event);
        auto* found = field.findChild<QMenu*>();
        EXPECT_NE(found, nullptr);
        return *found;
    }

    QAction& entry(const QString& name) {
        for (auto* action : menu().actions()) {
            if (action->text().remove(u'&').section(u'\t', 0, 0) == name)
                return *action;
        }
        throw std::runtime_error(name.toStdString());
    }
};

TEST_F(LineEditTest, EveryKeyThatPastesAsksForTheClipboard) {
    for (const auto& keys :
         {QKeySequence(Qt::CTRL | Qt::Key_V), QKeySequence(Qt::SHIFT | Qt::Key_Insert)}) {
        const auto combination = keys[0];
        field.clear();
        press(combination.key(), combination.keyboardModifiers());
        EXPECT_EQ(owner.asked(), PasteFrom::Clipboard) << keys.toString().toStdString();
        owner.answer(u"Rome"_s);
        EXPECT_EQ(field.text(), u"Rome"_s);
    }
}

TEST_F(LineEditTest, MiddleButtonPastesTheSelectionWhereItIsPressed) {
    field.setText(u"ab"_s);
    field.selectAll();
    QTest::mouseClick(&field, Qt::MiddleButton, {}, QPoint(1, field.height() / 2));
    EXPECT_EQ(owner.asked(), PasteFrom::Selection);
    owner.answer(u"x"_s);
    EXPECT_EQ(field.text(), u"xab"_s);
}

TEST_F(LineEditTest, MenuOffersPasteWithoutAskingWhetherThereIsAnything) {
    EXPECT_TRUE(entry(u"Paste"_s).isEnabled());
    EXPECT_EQ(owner.asked(), std::nullopt);
    entry(u"Paste"_s).trigger();
    EXPECT_EQ(owner.asked(), PasteFrom::Clipboard);
    owner.answer(u"Rome"_s);
    EXPECT_EQ(field.text(), u"Rome"_s);
}

TEST_F(LineEditTest, NothingIsEverReadThroughQt) {
    QGuiApplication::clipboard()->setMimeData(new UnreadableData);
    press(Qt::Key_V);
    QTest::mouseClick(&field, Qt::MiddleButton);
    field.paste();
    entry(u"Paste"_s).trigger();
    QGuiApplication::clipboard()->clear();
}

TEST_F(LineEditTest, MenuOffersWhatTheFieldCanDo) {
    type(u"Rome"_s);
    EXPECT_TRUE(entry(u"Undo"_s).isEnabled());
    EXPECT_FALSE(entry(u"Redo"_s).isEnabled());
    EXPECT_FALSE(entry(u"Cut"_s).isEnabled());
    EXPECT_FALSE(entry(u"Copy"_s).isEnabled());
    EXPECT_FALSE(entry(u"Delete"_s).isEnabled());
    entry(u"Select All"_s).trigger();
    EXPECT_EQ(field.selectedText(), u"Rome"_s);
}

TEST_F(LineEditTest, MenuClosesWithTheWindowOfItsField) {
    const QPointer<QMenu> opened = &menu();
    ASSERT_TRUE(opened->isVisible());
    field.window()->hide();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(opened.isNull());
}

TEST_F(LineEditTest, MenuOfAFieldThatCannotBeEditedOnlyCopies) {
    field.setReadOnly(true);
    QStringList names;
    for (const auto* action : menu().actions())
        names.append(action->text().section(u'\t', 0, 0));
    EXPECT_EQ(names, (QStringList{u"&Copy"_s, {}, u"Select All"_s}));
    press(Qt::Key_V);
    EXPECT_EQ(owner.asked(), std::nullopt);
}

TEST_F(LineEditTest, SlotOfThatNamePastesAsWell) {
    EXPECT_TRUE(QMetaObject::invokeMethod(&field, "paste"));
    EXPECT_EQ(owner.asked(), PasteFrom::Clipboard);
}

TEST_F(LineEditTest, PasteReplacesWhatWasSelectedWhenItWasAskedFor) {
    type(u"Rome"_s);
    field.setSelection(0, 2);
    press(Qt::Key_V);
    field.deselect();
    owner.answer(u"Wha"_s);
    EXPECT_EQ(field.text(), u"Whame"_s);
    EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(LineEditTest, PasteGoesWhereTheCursorWas) {
    type(u"Rome"_s);
    field.setCursorPosition(2);
    press(Qt::Key_V);
    field.selectAll();
    owner.answer(u"-"_s);
    EXPECT_EQ(field.text(), u"Ro-me"_s);
}

TEST_F(LineEditTest, TypingGoesOnAndGivesUpTheLatePaste) {
    press(Qt::Key_V);
    type(u"Oslo"_s);
    EXPECT_EQ(field.text(), u"Oslo"_s);
    owner.answer(u"Rome"_s);
    EXPECT_EQ(field.text(), u"Oslo"_s);
}

TEST_F(LineEditTest, HidingTheFieldGivesUpThePaste) {
    press(Qt::Key_V);
    field.hide();
    EXPECT_EQ(owner.asked(), std::nullopt);
}

TEST_F(LineEditTest, FieldMayGoBeforeTheAnswer) {
    press(Qt::Key_V);
    delete &field;
    EXPECT_EQ(owner.asked(), std::nullopt);
}

TEST_F(LineEditTest, NothingToPasteLeavesWhatIsSelected) {
    type(u"Rome"_s);
    field.selectAll();
    pasteText({});
    EXPECT_EQ(field.selectedText(), u"Rome"_s);
}

TEST_F(LineEditTest, PasteIsOneStepToUndo) {
    type(u"ab"_s);
    pasteText(u"cd"_s);
    type(u"ef"_s);
    press(Qt::Key_Z);
    EXPECT_EQ(field.text(), u"abcd"_s);
    press(Qt::Key_Z);
    EXPECT_EQ(field.text(), u"ab"_s);
    press(Qt::Key_Z);
    EXPECT_EQ(field.text(), QString());
}

TEST_F(LineEditTest, PasteIsEditingWithinTheLengthThatIsAllowed) {
    QStringList edits;
    QObject::connect(&field, &QLineEdit::textEdited, [&](const QString& text) { edits << text; });
    field.setMaxLength(3);
    pasteText(u"Rome"_s);
    EXPECT_EQ(edits, QStringList(u"Rom"_s));
}

TEST_F(LineEditTest, PasteThatTheValidatorRefusesChangesNothing) {
    QIntValidator digits;
    field.setValidator(&digits);
    type(u"12"_s);
    pasteText(u"x"_s);
    EXPECT_EQ(field.text(), u"12"_s);
}

} // namespace
} // namespace quorvane
