// SPDX-License-Identifier: MIT
#include <controls/FlowLayout.h>
#include <support/Draws.h>

#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

class Block final : public QWidget {
public:
    Block(QSize size, QWidget* parent) : QWidget(parent), m_size(size) {}

    void grow(QSize size) {
        m_size = size;
        updateGeometry();
    }

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

    [[nodiscard]] QSize minimumSizeHint() const override { return m_size; }

private:
    QSize m_size;
};

/// A widget that is laid out with 6 points between its blocks.
class FlowLayoutTest : public testing::Test {
protected:
    QWidget widget;
    FlowLayout* flow = new FlowLayout(6, &widget);
    std::vector<Block*> blocks;

    void add(std::initializer_list<QSize> sizes) {
        for (const auto& size : sizes) {
            blocks.push_back(new Block(size, &widget));
            flow->addWidget(blocks.back());
        }
    }

    std::vector<QRect> places(int width) {
        widget.setGeometry(0, 0, width, 400);
        flow->activate();
        std::vector<QRect> result;
        for (const auto* block : blocks)
            result.push_back(block->geometry());
        return result;
    }
};

TEST_F(FlowLayoutTest, WithoutItemsItTakesNoHeight) {
    EXPECT_EQ(flow->heightForWidth(100), 0);
    EXPECT_EQ(FlowLayout::sizeThatFits(100, {}, 6), QSizeF(100, 0));
    EXPECT_TRUE(FlowLayout::placeSubviews({0, 0, 100, 10}, {}, 6).empty());
}

TEST_F(FlowLayoutTest, ItemWiderThanTheLayoutStandsAloneAndOverflows) {
    add({{150, 20}});
    EXPECT_EQ(flow->heightForWidth(100), 20);
    EXPECT_EQ(places(100), std::vector{QRect(0, 0, 150, 20)});
}

TEST_F(FlowLayoutTest, ItemAfterAWideOneStartsARow) {
    add({{150, 20}, {30, 20}});
    EXPECT_EQ(places(100), (std::vector{QRect(0, 0, 150, 20), QRect(0, 26, 30, 20)}));
}

TEST_F(FlowLayoutTest, ItemsThatReachTheEdgeExactlyStayInTheRow) {
    add({{47, 20}, {47, 20}});
    EXPECT_EQ(flow->heightForWidth(100), 20);
    EXPECT_EQ(places(100), (std::vector{QRect(0, 0, 47, 20), QRect(53, 0, 47, 20)}));
    EXPECT_EQ(flow->heightForWidth(99), 46);
}

TEST_F(FlowLayoutTest, ThirdItemThatCrossesTheEdgeWraps) {
    add({{40, 20}, {40, 20}, {40, 20}});
    EXPECT_EQ(
        places(100),
        (std::vector{QRect(0, 0, 40, 20), QRect(46, 0, 40, 20), QRect(0, 26, 40, 20)}));
    EXPECT_EQ(flow->heightForWidth(100), 46);
}

TEST_F(FlowLayoutTest, RowIsAsHighAsItsTallestItemAndAlignedAtTheTop) {
    add({{40, 10}, {40, 30}, {40, 20}});
    EXPECT_EQ(
        places(100),
        (std::vector{QRect(0, 0, 40, 10), QRect(46, 0, 40, 30), QRect(0, 36, 40, 20)}));
}

TEST_F(FlowLayoutTest, RightToLeftIsTheMirrorImage) {
    add({{40, 20}, {30, 20}, {60, 20}});
    widget.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(
        places(100),
        (std::vector{QRect(60, 0, 40, 20), QRect(24, 0, 30, 20), QRect(40, 26, 60, 20)}));
}

TEST_F(FlowLayoutTest, ChangeOfDirectionMovesWhatIsShown) {
    add({{40, 20}});
    widget.resize(100, 40);
    widget.show();
    EXPECT_EQ(blocks[0]->x(), 0);
    widget.setLayoutDirection(Qt::RightToLeft);
    flow->activate();
    EXPECT_EQ(blocks[0]->x(), 60);
}

TEST_F(FlowLayoutTest, HiddenItemsTakeNoRoom) {
    add({{40, 20}, {40, 20}, {40, 20}});
    blocks[1]->hide();
    places(100);
    EXPECT_EQ(blocks[2]->geometry(), QRect(46, 0, 40, 20));
    EXPECT_EQ(flow->heightForWidth(100), 20);
}

TEST_F(FlowLayoutTest, ItemThatGrowsMakesRoomForItself) {
    add({{40, 20}, {40, 20}});
    places(100);
    blocks[0]->grow({70, 20});
    EXPECT_EQ(places(100)[1], QRect(0, 26, 40, 20));
}

TEST_F(FlowLayoutTest, ItemTakenOutIsNoLongerLaidOut) {
    add({{40, 20}, {40, 20}});
    const std::unique_ptr<QLayoutItem> taken(flow->takeAt(0));
    EXPECT_EQ(taken->widget(), blocks[0]);
    EXPECT_EQ(flow->count(), 1);
    places(100);
    EXPECT_EQ(blocks[1]->geometry(), QRect(0, 0, 40, 20));
    EXPECT_EQ(flow->takeAt(1), nullptr);
    EXPECT_EQ(flow->takeAt(-1), nullptr);
    EXPECT_EQ(flow->itemAt(1), nullptr);
}

TEST_F(FlowLayoutTest, HeightFollowsTheWidthInsideAnotherLayout) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    add({{40, 20}, {40, 20}, {40, 20}});
    column->addWidget(&widget);
    column->addStretch();
    window.resize(200, 300);
    window.show();
    EXPECT_EQ(widget.height(), 20);
    window.resize(100, 300);
    column->activate();
    EXPECT_EQ(widget.height(), 46);
    widget.setParent(nullptr);
}

TEST_F(FlowLayoutTest, AsksForOneRowAndNeedsItsWidestItem) {
    add({{40, 20}, {70, 20}});
    EXPECT_EQ(flow->sizeHint(), QSize(116, 20));
    EXPECT_EQ(flow->minimumSize().width(), 70);
}

TEST(FlowLayoutRule, UnlimitedWidthIsOneRowOfInfiniteWidth) {
    const auto size = FlowLayout::sizeThatFits({}, {{40, 20}, {4000, 30}, {40, 10}}, 6);
    EXPECT_TRUE(std::isinf(size.width()));
    EXPECT_EQ(size.height(), 30);
}

TEST(FlowLayoutRule, SizeClaimsTheProposedWidth) {
    EXPECT_EQ(FlowLayout::sizeThatFits(500, {{40, 20}}, 6), QSizeF(500, 20));
}

TEST(FlowLayoutRule, PlacesStartAtTheBounds) {
    const std::vector<QPointF> expected{{18, 14}, {64, 14}, {18, 40}};
    EXPECT_EQ(
        FlowLayout::placeSubviews({18, 14, 100, 5}, {{40, 20}, {40, 20}, {40, 20}}, 6), expected);
}

TEST(FlowLayoutRule, HoldsForAnyItems) {
    Draws draws;
    SCOPED_TRACE(draws.origin());
    for (int round = 0; round < 500; ++round) {
        const double spacing = draws.number(0, 12);
        const double width = draws.number(1, 300);
        std::vector<QSizeF> sizes;
        for (int count = draws.number(1, 20); count > 0; --count)
            sizes.emplace_back(draws.number(1, 200), draws.number(1, 40));
        const auto places = FlowLayout::placeSubviews({7, 3, width, 5}, sizes, spacing);
        ASSERT_EQ(places.size(), sizes.size());
        double bottom = places[0].y() + sizes[0].height();
        EXPECT_EQ(places[0], QPointF(7, 3));
        for (std::size_t i = 1; i < places.size(); ++i) {
            const auto next = places[i - 1].x() + sizes[i - 1].width() + spacing;
            // An item leaves its row only where it would cross the edge.
            if (next + sizes[i].width() <= 7 + width) {
                EXPECT_EQ(places[i], QPointF(next, places[i - 1].y()));
            } else {
                EXPECT_EQ(places[i], QPointF(7, bottom + spacing));
            }
            bottom = std::max(bottom, places[i].y() + sizes[i].height());
        }
        EXPECT_EQ(FlowLayout::sizeThatFits(width, sizes, spacing), QSizeF(width, bottom - 3));
    }
}

} // namespace
} // namespace quorvane
