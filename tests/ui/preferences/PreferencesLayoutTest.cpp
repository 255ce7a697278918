// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

#include <controls/SectionColumn.h>
#include <platform/KeyCodes.h>

#include <QLayout>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PreferencesLayoutTest : public PreferencesFixture {
protected:
    void settle() {
        view->ensurePolished();
        view->layout()->activate();
        for (auto* child : view->findChildren<QWidget*>()) {
            if (child->layout() != nullptr)
                child->layout()->activate();
        }
    }

    void setBody(int pixels) {
        auto font = view->font();
        font.setPixelSize(pixels);
        view->setFont(font);
        settle();
    }

    QRect placeOf(const QWidget& widget) {
        return {widget.mapTo(view.get(), QPoint()), widget.size()};
    }

    QRect placeOf(const QString& text) { return placeOf(*label(text)); }
};

TEST_F(PreferencesLayoutTest, HasTheMeasuresOfTheDesign) {
    settle();
    EXPECT_EQ(preferencesmetrics::size, QSize(400, 540));
    EXPECT_EQ(view->width(), preferencesmetrics::size.width());
    EXPECT_EQ(placeOf(u"Keyboard Shortcut"_s).topLeft(), QPoint(10, 10));
    const auto recorder = placeOf(*view->findChild<ShortcutRecorder*>());
    EXPECT_EQ(recorder.top(), 10 + 16 + 8);
    EXPECT_EQ(recorder.height(), 32);
    EXPECT_EQ(recorder.right(), 389);
    const auto label = placeOf(u"Invoke Quorvane"_s);
    EXPECT_EQ(label.left(), 10);
    EXPECT_EQ(label.right() + 1 + 12, recorder.left());
    EXPECT_NEAR(label.center().y(), recorder.center().y(), 1);
    const auto caption =
        placeOf(u"Requires at least one modifier key (Ctrl, Alt, Shift, Super)."_s);
    EXPECT_EQ(caption.top(), recorder.bottom() + 1 + 6);
    EXPECT_EQ(caption.height(), 14);
    EXPECT_EQ(placeOf(u"Tray & Taskbar"_s).top(), caption.bottom() + 1 + 14 + 1 + 14);
    EXPECT_EQ(placeOf(field()).height(), 32);
    EXPECT_EQ(placeOf(field()).left(), 10);
    EXPECT_EQ(placeOf(field()).right(), 389);
    EXPECT_EQ(placeOf(list()).bottom(), view->rect().bottom());
    EXPECT_EQ(placeOf(*list().viewport()).top(), placeOf(field()).bottom() + 1 + 6);
    EXPECT_EQ(list().visualRect(row(0)).height(), 36);
}

TEST_F(PreferencesLayoutTest, SwitchesEndWithTheColumnLevelWithTheFirstLine) {
    auto& dock = box(u"Show windows in taskbar"_s);
    const auto translated =
        u"A language that needs far more words than English to say the very same thing"_s;
    label(dock.accessibleName())->setText(translated);
    EXPECT_TRUE(QTest::qWaitFor([&] { return placeOf(translated).height() == 32; })) << "two lines";
    EXPECT_EQ(placeOf(dock).right(), 389);
    EXPECT_NEAR(placeOf(dock).center().y(), placeOf(translated).top() + 8, 1);
}

TEST_F(PreferencesLayoutTest, ListTakesTheHeightThatThereIs) {
    settle();
    const int before = list().height();
    view->resize(400, 640);
    settle();
    EXPECT_EQ(list().height(), before + 100);
    EXPECT_EQ(view->minimumWidth(), view->maximumWidth());
    EXPECT_LE(view->minimumSizeHint().height(), preferencesmetrics::size.height());
}

TEST_F(PreferencesLayoutTest, NothingOverlapsInSmallAndLargeFonts) {
    for (const int pixels : {9, 13, 16, 20}) {
        setBody(pixels);
        // What is longer than the window scrolls.
        QCoreApplication::sendPostedEvents();
        const std::vector<QWidget*> column{
            label(u"Keyboard Shortcut"_s),
            view->findChild<ShortcutRecorder*>(),
            label(u"Requires at least one modifier key (Ctrl, Alt, Shift, Super)."_s),
            label(u"Tray & Taskbar"_s),
            label(u"Show icon in system tray"_s),
            label(u"Show windows in taskbar"_s),
            label(u"General"_s),
            label(u"Start at login"_s),
            label(u"Remember format and zones"_s),
            label(u"Favorite Time Zones"_s),
            label(u"Favorites appear as one-click chips in the popover."_s),
            &field(),
            &list()};
        for (std::size_t index = 1; index < column.size(); ++index)
            EXPECT_GT(placeOf(*column[index]).top(), placeOf(*column[index - 1]).bottom())
                << pixels << " at " << index;
        for (const auto* text : view->findChildren<QLabel*>()) {
            if (!text->isVisible() || !text->wordWrap())
                continue;
            EXPECT_GE(text->height(), text->heightForWidth(text->width()))
                << pixels << " " << text->text().toStdString();
        }
        EXPECT_GE(list().height(), 100) << pixels;
        EXPECT_GE(
            list().visualRect(row(0)).height(),
            QFontMetrics(view->font()).height() + QFontMetrics(view->font()).height() * 10 / 13);
    }
}

TEST_F(PreferencesLayoutTest, WhatIsLongerThanTheWindowScrollsAndTheFocusIsSeen) {
    const auto& area = *view->findChild<SectionColumn*>();
    settle();
    EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
    setBody(24);
    view->resize(preferencesmetrics::size);
    settle();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(view->size(), preferencesmetrics::size);
    ASSERT_GT(area.verticalScrollBar()->maximum(), 0);
    EXPECT_GE(list().height(), preferencesmetrics::leastListHeight);
    button(u"Record new shortcut"_s).setFocus(Qt::TabFocusReason);
    for (int tab = 0; tab < 7; ++tab) {
        QTest::keyClick(view->windowHandle(), Qt::Key_Tab);
        const auto* focused = view->focusWidget();
        const QRect seen(area.viewport()->mapTo(view.get(), QPoint()), area.viewport()->size());
        EXPECT_TRUE(seen.intersects(placeOf(*focused))) << focused->accessibleName().toStdString();
        EXPECT_TRUE(focused == &list() || seen.contains(placeOf(*focused)))
            << focused->accessibleName().toStdString();
    }
}

TEST_F(PreferencesLayoutTest, ShortcutStandsBelowItsNameWhereItHasNoRoomBesideIt) {
    model->setHotKey({keycode::backspace, 0x1b00});
    openView();
    setBody(24);
    const auto name = placeOf(u"Invoke Quorvane"_s);
    const auto recorder = placeOf(*view->findChild<ShortcutRecorder*>());
    EXPECT_EQ(recorder.top(), name.bottom() + 1 + 4);
    EXPECT_EQ(recorder.left(), name.left());
    EXPECT_EQ(recorder.right(), 389);
    const auto& area = *view->findChild<SectionColumn*>();
    EXPECT_EQ(area.widget()->width(), area.viewport()->width()) << "nothing is cut off";
}

TEST_F(PreferencesLayoutTest, MirrorsWhereTextRunsFromRightToLeft) {
    view->setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_EQ(placeOf(box(u"Show icon in system tray"_s)).left(), 10);
    EXPECT_EQ(placeOf(u"Keyboard Shortcut"_s).right(), 389);
    EXPECT_EQ(placeOf(*view->findChild<ShortcutRecorder*>()).left(), 10);
    const auto starred = placeOf(starredOnly());
    EXPECT_LT(starred.right(), placeOf(field()).center().x());
    EXPECT_GT(starred.left(), placeOf(*starredOnly().parentWidget()).left());
}

} // namespace
} // namespace quorvane
