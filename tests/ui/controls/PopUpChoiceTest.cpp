// SPDX-License-Identifier: MIT
#include "MenuChip.h"
#include "MenuRow.h"
#include "PopUpButton.h"

#include <controls/Choice.h>
#include <controls/MacPopUpButton.h>
#include <support/ControlWindow.h>

#include <QApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// Counts how often what stands in a widget's layout asks to be laid out anew.
class LayoutRequests final : public QObject {
public:
    explicit LayoutRequests(QWidget& watched) : m_watched(watched) {
        QCoreApplication::sendPostedEvents(&m_watched, QEvent::LayoutRequest);
        m_watched.installEventFilter(this);
    }

    [[nodiscard]] int count() {
        QCoreApplication::sendPostedEvents(&m_watched, QEvent::LayoutRequest);
        return m_count;
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest)
            ++m_count;
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& m_watched;
    int m_count = 0;
};

template <typename Control>
class PopUpChoiceTest : public testing::Test {
protected:
    ControlWindow window;
    Control& popUp = window.add(new Control(PopoverEffects{}));
    QString selection = u"Long"_s;
    int writes = 0;
    Choice<QString> choice{
        popUp,
        {u"Full"_s, u"Long"_s, u"Medium"_s},
        [](const QString& item) { return item; },
        {[this] { return selection; },
         [this](const QString& item) {
             selection = item;
             ++writes;
         }}};

    PopUpChoiceTest() { EXPECT_TRUE(window.open()); }

    [[nodiscard]] PopUpButton& button() const { return *popUp.template findChild<PopUpButton*>(); }

    [[nodiscard]] bool isOpen() const { return accessible(button()).state().expanded; }

    [[nodiscard]] QList<MenuRow*> rows() const {
        auto* popover = QApplication::activePopupWidget();
        return popover != nullptr ? popover->findChildren<MenuRow*>() : QList<MenuRow*>();
    }

    [[nodiscard]] QWidget* focusedRow() const {
        return QApplication::activePopupWidget()->focusWidget();
    }
};

using Controls = testing::Types<MenuChip, MacPopUpButton>;
TYPED_TEST_SUITE(PopUpChoiceTest, Controls);

TYPED_TEST(PopUpChoiceTest, PressOfAnAssistiveToolWhileItIsOpenClosesIt) {
    this->button().click();
    ASSERT_TRUE(this->isOpen());
    this->button().click();
    EXPECT_FALSE(this->isOpen());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TYPED_TEST(PopUpChoiceTest, OpensByClickAndByKey) {
    const std::function<void()> ways[] = {
        [this] { QTest::mouseClick(&this->button(), Qt::LeftButton); },
        [this] { QTest::keyClick(&this->button(), Qt::Key_Space); },
        [this] { QTest::keyClick(&this->button(), Qt::Key_Return); },
        [this] { QTest::keyClick(&this->button(), Qt::Key_F4); },
        [this] { QTest::keyClick(&this->button(), Qt::Key_Down, Qt::AltModifier); },
    };
    for (const auto& open : ways) {
        open();
        ASSERT_TRUE(this->isOpen());
        ASSERT_EQ(this->rows().size(), 3);
        EXPECT_TRUE(this->rows()[1]->isChecked());
        EXPECT_EQ(this->focusedRow(), this->rows()[1]);
        EXPECT_TRUE(accessible(this->button()).state().expanded);
        QTest::keyClick(this->focusedRow(), Qt::Key_Escape);
        EXPECT_FALSE(this->isOpen());
        EXPECT_TRUE(accessible(this->button()).state().collapsed);
        EXPECT_EQ(this->window.focusWidget(), &this->button());
    }
    EXPECT_EQ(this->writes, 0);
}

TYPED_TEST(PopUpChoiceTest, ChoosesByMouse) {
    this->popUp.open();
    QTest::mouseClick(this->rows()[2], Qt::LeftButton);
    EXPECT_EQ(this->selection, u"Medium"_s);
    EXPECT_FALSE(this->isOpen());
    EXPECT_EQ(this->popUp.selectedIndex(), 2);
}

TYPED_TEST(PopUpChoiceTest, ChoosesByKeys) {
    this->popUp.open();
    QTest::keyClick(this->focusedRow(), Qt::Key_Up);
    QTest::keyClick(this->focusedRow(), Qt::Key_Up);
    QTest::keyClick(this->focusedRow(), Qt::Key_Return);
    EXPECT_EQ(this->selection, u"Full"_s);
    this->popUp.open();
    QTest::keyClick(this->focusedRow(), Qt::Key_End);
    QTest::keyClick(this->focusedRow(), Qt::Key_Space);
    EXPECT_EQ(this->selection, u"Medium"_s);
    this->popUp.open();
    QTest::keyClick(this->focusedRow(), Qt::Key_L);
    QTest::keyClick(this->focusedRow(), Qt::Key_Return);
    EXPECT_EQ(this->selection, u"Long"_s);
    EXPECT_FALSE(this->isOpen());
}

TYPED_TEST(PopUpChoiceTest, ChoosingTheSelectedItemClosesAndLeavesIt) {
    this->popUp.open();
    QTest::mouseClick(this->rows()[1], Qt::LeftButton);
    EXPECT_FALSE(this->isOpen());
    EXPECT_EQ(this->selection, u"Long"_s);
    EXPECT_EQ(this->popUp.selectedIndex(), 1);
}

TYPED_TEST(PopUpChoiceTest, ArrowsChangeTheSelectionWhileItIsClosed) {
    QTest::keyClick(&this->button(), Qt::Key_Down);
    EXPECT_EQ(this->selection, u"Medium"_s);
    QTest::keyClick(&this->button(), Qt::Key_Down);
    EXPECT_EQ(this->selection, u"Medium"_s);
    QTest::keyClick(&this->button(), Qt::Key_Up);
    EXPECT_EQ(this->selection, u"Long"_s);
    EXPECT_FALSE(this->isOpen());
}

TYPED_TEST(PopUpChoiceTest, IsRebuiltAtEveryUpdate) {
    this->choice.setItems({u"Long"_s, u"ISO 8601"_s});
    EXPECT_EQ(this->popUp.selectedIndex(), 0);
    this->popUp.open();
    ASSERT_EQ(this->rows().size(), 2);
    EXPECT_EQ(this->rows()[1]->text(), u"ISO 8601"_s);
    QTest::mouseClick(this->rows()[1], Qt::LeftButton);
    EXPECT_EQ(this->selection, u"ISO 8601"_s);
}

TYPED_TEST(PopUpChoiceTest, ListOfOtherTitlesIsNotLeftOpen) {
    this->popUp.open();
    this->choice.refresh();
    EXPECT_TRUE(this->isOpen());
    this->choice.setItems({u"ISO 8601"_s});
    EXPECT_FALSE(this->isOpen());
}

TYPED_TEST(PopUpChoiceTest, SelectionThatIsNoItemShowsItsTitle) {
    this->selection = u"Custom"_s;
    this->choice.refresh();
    EXPECT_EQ(this->popUp.selectedIndex(), std::nullopt);
    EXPECT_EQ(this->button().text(), u"Custom"_s);
    EXPECT_EQ(accessible(this->button()).text(QAccessible::Value), u"Custom"_s);
    this->popUp.open();
    for (const auto* row : this->rows())
        EXPECT_FALSE(row->isChecked());
    QTest::mouseClick(this->rows()[0], Qt::LeftButton);
    EXPECT_EQ(this->selection, u"Full"_s);
}

TYPED_TEST(PopUpChoiceTest, ItemThatStandsForTheSelectionIsMarkedAndCanBeChosen) {
    this->selection = u"Short"_s;
    this->choice.setItems({u"Full"_s, u"Long"_s, u"Medium"_s}, u"Medium"_s);
    EXPECT_EQ(this->button().text(), u"Short"_s);
    this->popUp.open();
    EXPECT_TRUE(this->rows()[2]->isChecked());
    EXPECT_EQ(this->focusedRow(), this->rows()[2]);
    QTest::mouseClick(this->rows()[2], Qt::LeftButton);
    EXPECT_EQ(this->selection, u"Medium"_s);
    EXPECT_EQ(this->button().text(), u"Medium"_s);
}

TYPED_TEST(PopUpChoiceTest, SamplesAreAskedForWhenTheListOpensAndDescribeItsRows) {
    int asked = 0;
    this->popUp.setSamples([&asked] {
        ++asked;
        return QStringList{u"one"_s, {}, u"three"_s};
    });
    this->choice.refresh();
    EXPECT_EQ(asked, 0);
    this->popUp.open();
    EXPECT_EQ(asked, 1);
    QStringList descriptions;
    for (auto* row : this->rows()) {
        descriptions.append(accessible(*row).text(QAccessible::Description));
        EXPECT_FALSE(accessible(*row).text(QAccessible::Name).contains(u"one"_s));
    }
    EXPECT_EQ(descriptions, (QStringList{u"one"_s, {}, u"three"_s}));
}

TYPED_TEST(PopUpChoiceTest, ChoicesAreRenewedWhenTheListOpens) {
    this->popUp.setRenewal([this] { this->choice.setItems({u"Long"_s, u"ISO 8601"_s}); });
    this->choice.refresh();
    EXPECT_EQ(this->popUp.titles().size(), 3);
    EXPECT_FALSE(this->popUp.isOpen());
    this->popUp.open();
    EXPECT_TRUE(this->popUp.isOpen());
    ASSERT_EQ(this->rows().size(), 2);
    EXPECT_TRUE(this->rows()[0]->isChecked());
    QTest::mouseClick(this->rows()[1], Qt::LeftButton);
    EXPECT_EQ(this->selection, u"ISO 8601"_s);
}

TYPED_TEST(PopUpChoiceTest, AnArrowStepsThroughRenewedChoices) {
    this->popUp.setRenewal([this] { this->choice.setItems({u"ISO 8601"_s, u"Long"_s}); });
    QTest::keyClick(&this->button(), Qt::Key_Down);
    EXPECT_EQ(this->selection, u"Long"_s);
    QTest::keyClick(&this->button(), Qt::Key_Up);
    EXPECT_EQ(this->selection, u"ISO 8601"_s);
}

TYPED_TEST(PopUpChoiceTest, ListTellsOfWhatIsChosenInItAlone) {
    QSignalSpy inList(&this->popUp, &PopUpChoice::chosenInList);
    QTest::keyClick(&this->button(), Qt::Key_Down);
    EXPECT_EQ(inList.count(), 0);
    this->popUp.open();
    QTest::keyClick(this->focusedRow(), Qt::Key_Return);
    ASSERT_EQ(inList.count(), 1);
    EXPECT_EQ(inList.at(0).at(0).toInt(), 2);
}

TYPED_TEST(PopUpChoiceTest, ListIsNoNarrowerThanTheControl) {
    this->popUp.setFixedWidth(311);
    this->window.layout()->activate();
    this->popUp.open();
    EXPECT_EQ(this->rows()[0]->width(), 311);
}

TYPED_TEST(PopUpChoiceTest, ChoiceOutOfRangeIsIgnored) {
    Q_EMIT this->popUp.chosen(3);
    Q_EMIT this->popUp.chosen(-1);
    EXPECT_EQ(this->writes, 0);
}

TYPED_TEST(PopUpChoiceTest, IsAComboBoxWithAValue) {
    this->popUp.setLabel(u"Format"_s);
    auto& interface = accessible(this->button());
    EXPECT_EQ(interface.role(), QAccessible::ComboBox);
    EXPECT_EQ(interface.text(QAccessible::Name), u"Format"_s);
    EXPECT_EQ(interface.text(QAccessible::Value), u"Long"_s);
    EXPECT_TRUE(interface.state().collapsed);
    EXPECT_TRUE(interface.state().hasPopup);
}

// Qt hands no events to assistive technology while none is there: the signal stands for them.
TYPED_TEST(PopUpChoiceTest, AnnouncesItsValueOnlyWhenItHasChanged) {
    const QSignalSpy changes(&this->button(), &PopUpButton::valueChanged);
    this->choice.refresh();
    this->choice.refresh();
    EXPECT_EQ(changes.count(), 0);
    this->selection = u"Full"_s;
    this->choice.refresh();
    this->choice.refresh();
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toString(), u"Full"_s);
    QTest::keyClick(&this->button(), Qt::Key_Down);
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(changes.at(1).at(0).toString(), u"Long"_s);
}

TYPED_TEST(PopUpChoiceTest, IsLaidOutAnewOnlyWhenATitleHasChanged) {
    LayoutRequests requests(this->popUp);
    this->choice.refresh();
    EXPECT_EQ(requests.count(), 0);
    this->choice.setItems({u"Full"_s, u"A longer one"_s});
    EXPECT_EQ(requests.count(), 1);
}

TYPED_TEST(PopUpChoiceTest, IsThirtyHighInATallerLayout) {
    this->window.resize(300, 400);
    EXPECT_EQ(this->popUp.height(), 30);
    EXPECT_EQ(this->button().height(), 30);
}

TYPED_TEST(PopUpChoiceTest, SecondPressOnItClosesAndDoesNotReopen) {
    const auto place = this->button().mapTo(&this->window, this->button().rect().center());
    auto* handle = this->window.windowHandle();
    QTest::mouseClick(handle, Qt::LeftButton, {}, place);
    ASSERT_TRUE(this->isOpen());
    QTest::mouseClick(handle, Qt::LeftButton, {}, place);
    EXPECT_FALSE(this->isOpen());
    QTest::mouseClick(handle, Qt::LeftButton, {}, place);
    EXPECT_TRUE(this->isOpen());
}

// The desktop's own windows hand the press on unless the popover forbids it.
TYPED_TEST(PopUpChoiceTest, PressOnItIsNotHandedOnAndOneElsewhereIs) {
    this->popUp.open();
    QPointer<QWidget> popover = QApplication::activePopupWidget();
    const auto onIt = this->button().mapToGlobal(this->button().rect().center());
    QTest::mousePress(popover, Qt::LeftButton, {}, popover->mapFromGlobal(onIt));
    EXPECT_FALSE(this->isOpen());
    ASSERT_TRUE(popover);
    EXPECT_TRUE(popover->testAttribute(Qt::WA_NoMouseReplay));
    this->popUp.open();
    popover = QApplication::activePopupWidget();
    QTest::mousePress(popover, Qt::LeftButton, {}, {-300, -300});
    EXPECT_FALSE(this->isOpen());
    ASSERT_TRUE(popover);
    EXPECT_FALSE(popover->testAttribute(Qt::WA_NoMouseReplay));
}

TYPED_TEST(PopUpChoiceTest, HidingItsWindowClosesIt) {
    this->popUp.open();
    this->window.hide();
    EXPECT_FALSE(this->isOpen());
}

} // namespace
} // namespace quorvane
