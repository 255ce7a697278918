// SPDX-License-Identifier: MIT
#include "CopyButton.h"

#include <support/ControlWindow.h>
#include <support/SymbolSearch.h>
#include <testing/VirtualMainQueue.h>

#include <QAnimationDriver>
#include <QApplication>
#include <QProxyStyle>
#include <gtest/gtest.h>

#include <cstdlib>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The style of a desktop with motion, or of one without.
class MotionStyle final : public QProxyStyle {
public:
    explicit MotionStyle(int milliseconds)
        : QProxyStyle(u"fusion"_s),
          m_milliseconds(milliseconds) {}

    int styleHint(
        StyleHint hint,
        const QStyleOption* option,
        const QWidget* widget,
        QStyleHintReturn* returned) const override {
        return hint == SH_Widget_Animation_Duration
                   ? m_milliseconds
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    int m_milliseconds;
};

/// Moves animations by hand.
class ManualDriver final : public QAnimationDriver {
public:
    ManualDriver() { install(); }

    ~ManualDriver() override {
        // An animation that ends with its button leaves its timer with the next event.
        QApplication::sendPostedEvents();
        uninstall();
    }

    Q_DISABLE_COPY_MOVE(ManualDriver)

    [[nodiscard]] qint64 elapsed() const override { return m_elapsed; }

    void moveOn(int milliseconds) {
        // What was started since takes this moment for its beginning.
        QApplication::sendPostedEvents();
        m_elapsed += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_elapsed = 0;
};

class CopyButtonTest : public testing::Test {
protected:
    MotionStyle moving{200};
    MotionStyle still{0};
    ManualDriver driver;
    VirtualMainQueue queue;
    ControlWindow window;
    CopyButton& copy = window.add(new CopyButton(queue, nullptr));
    Theme theme = Theme::of(window.palette());

    CopyButtonTest() {
        copy.setStyle(&moving);
        copy.setFixedWidth(200);
        EXPECT_TRUE(window.open());
    }

    void confirm() {
        copy.confirm();
        QApplication::sendPostedEvents(); // an animation starts with the next event
    }

    [[nodiscard]] bool shows(Symbol symbol, const QColor& color) {
        return placeOf({symbol, {}, color}, copy).has_value();
    }

    /// How far the picture is from `from` to `to`, where the two differ most.
    [[nodiscard]] double progress(const QImage& from, const QImage& to) {
        const auto now = picture(copy);
        QPoint place;
        int most = 0;
        for (int y = 0; y < from.height(); ++y) {
            for (int x = 0; x < from.width(); ++x) {
                const int change = std::abs(qGray(from.pixel(x, y)) - qGray(to.pixel(x, y)));
                if (change > most) {
                    most = change;
                    place = {x, y};
                }
            }
        }
        EXPECT_GT(most, 60);
        const double start = qGray(from.pixel(place));
        return (qGray(now.pixel(place)) - start) / (qGray(to.pixel(place)) - start);
    }
};

TEST_F(CopyButtonTest, ConfirmationHasItsSymbolAndIsGreen) {
    copy.setStyle(&still);
    EXPECT_TRUE(shows(Symbol::DocOnDoc, theme.secondaryText));
    confirm();
    EXPECT_FALSE(shows(Symbol::DocOnDoc, theme.secondaryText));
    EXPECT_TRUE(shows(Symbol::Checkmark, QColor(0x1a7a37)));
    queue.advance(1500ms);
    EXPECT_TRUE(shows(Symbol::DocOnDoc, theme.secondaryText));
    EXPECT_FALSE(shows(Symbol::Checkmark, QColor(0x1a7a37)));
}

TEST_F(CopyButtonTest, RefusalHasItsSymbolAndIsRed) {
    copy.setStyle(&still);
    copy.refuse();
    EXPECT_TRUE(shows(Symbol::XmarkCircleFill, theme.danger));
    queue.advance(1500ms);
    EXPECT_TRUE(shows(Symbol::DocOnDoc, theme.secondaryText));
}

TEST_F(CopyButtonTest, LabelIsGreenAsWell) {
    copy.setStyle(&still);
    confirm();
    bool hasTextColor = false;
    const auto image = picture(copy);
    for (int y = 4; y < image.height() - 4; ++y) {
        for (int x = 4; x < image.width() - 4; ++x)
            hasTextColor |= qGray(image.pixel(x, y)) < qGray(QColor(0x1a7a37).rgb()) - 4;
    }
    EXPECT_FALSE(hasTextColor);
}

TEST_F(CopyButtonTest, WidthDoesNotChange) {
    const auto size = copy.size();
    confirm();
    EXPECT_EQ(copy.size(), size);
}

TEST_F(CopyButtonTest, FacesFadeIntoEachOtherWithinAFifthOfASecond) {
    copy.setStyle(&still);
    const auto before = picture(copy);
    confirm();
    const auto after = picture(copy);
    queue.advance(1500ms);
    copy.setStyle(&moving);
    confirm();
    EXPECT_NEAR(progress(before, after), 0, 0.03);
    // Slowly at first and in the end: a quarter of the time makes an eighth of the way.
    driver.moveOn(50);
    EXPECT_NEAR(progress(before, after), 0.125, 0.05);
    driver.moveOn(50);
    EXPECT_NEAR(progress(before, after), 0.5, 0.05);
    driver.moveOn(50);
    EXPECT_NEAR(progress(before, after), 0.875, 0.05);
    driver.moveOn(50);
    EXPECT_EQ(picture(copy), after);
}

TEST_F(CopyButtonTest, FacesFadeBackToo) {
    confirm();
    driver.moveOn(200);
    queue.advance(1500ms);
    QApplication::sendPostedEvents();
    EXPECT_FALSE(shows(Symbol::DocOnDoc, theme.secondaryText));
    driver.moveOn(200);
    EXPECT_TRUE(shows(Symbol::DocOnDoc, theme.secondaryText));
}

} // namespace
} // namespace quorvane
