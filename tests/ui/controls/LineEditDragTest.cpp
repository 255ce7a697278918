// SPDX-License-Identifier: MIT
#include <controls/LineEdit.h>
#include <support/ControlWindow.h>
#include <support/HeldPaste.h>
#include <support/UnreadableData.h>

#include <QDropEvent>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class LineEditDragTest : public testing::Test {
protected:
    HeldPaste owner;
    ControlWindow window;
    LineEdit& field = window.add(new LineEdit(owner.reader()));
    UnreadableData data;

    LineEditDragTest() {
        EXPECT_TRUE(window.open());
        field.setText(u"ab"_s);
    }

    template <typename Event>
    bool send() {
        const QPoint place(field.width() - 1, field.height() / 2);
        Event event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&field, &event);
        return event.isAccepted();
    }
};

TEST_F(LineEditDragTest, TextIsReadWhileItIsDraggedAndThenCanBeDropped) {
    EXPECT_TRUE(send<QDragEnterEvent>());
    EXPECT_EQ(owner.asked(), PasteFrom::Drag);
    EXPECT_FALSE(send<QDragMoveEvent>());
    owner.answer(u"cd"_s);
    EXPECT_TRUE(send<QDragMoveEvent>());
    EXPECT_TRUE(send<QDropEvent>());
    EXPECT_EQ(field.text(), u"abcd"_s);
}

TEST_F(LineEditDragTest, DropBeforeTheTextHasComeChangesNothing) {
    send<QDragEnterEvent>();
    EXPECT_FALSE(send<QDropEvent>());
    EXPECT_EQ(owner.asked(), std::nullopt);
    EXPECT_EQ(field.text(), u"ab"_s);
}

TEST_F(LineEditDragTest, NothingIsTakenFromAProgramThatDoesNotAnswer) {
    send<QDragEnterEvent>();
    owner.answer({});
    EXPECT_FALSE(send<QDragMoveEvent>());
    EXPECT_FALSE(send<QDropEvent>());
    EXPECT_EQ(field.text(), u"ab"_s);
}

TEST_F(LineEditDragTest, LeavingForgetsTheText) {
    send<QDragEnterEvent>();
    owner.answer(u"cd"_s);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&field, &leave);
    send<QDragEnterEvent>();
    EXPECT_FALSE(send<QDragMoveEvent>());
    EXPECT_EQ(field.text(), u"ab"_s);
}

} // namespace
} // namespace quorvane
