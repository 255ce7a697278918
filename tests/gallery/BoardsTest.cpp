// SPDX-License-Identifier: MIT
#include "Boards.h"

#include <support/GalleryFolder.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class Boards : public testing::TestWithParam<BoardSetting> {
protected:
    AppliedSetting applied{GetParam()};

    static void write(const QString& board, const QImage& image) {
        EXPECT_TRUE(image.save(galleryFile(u"%1-%2"_s.arg(board, GetParam().name))));
    }
};

TEST_P(Boards, ThePanelIsWritten) {
    const auto board = panelBoard(GetParam());
    // Two panels of 504 points beside each other, 32 around and between them.
    EXPECT_EQ(board.width(), qRound(1104 * GetParam().scale));
    write(u"panel"_s, board);
}

TEST_P(Boards, PanelWithMuchToShowIsWritten) {
    const auto board = outputBoard(GetParam());
    EXPECT_EQ(board.width(), qRound(1104 * GetParam().scale));
    write(u"output"_s, board);
}

TEST_P(Boards, WhatThePanelOpensIsWritten) {
    const auto board = popoversBoard(GetParam());
    EXPECT_EQ(board.width(), qRound(1640 * GetParam().scale));
    write(u"popovers"_s, board);
}

TEST_P(Boards, WhatIsTypedIsWritten) {
    const auto board = entryBoard(GetParam());
    EXPECT_EQ(board.width(), qRound(1640 * GetParam().scale));
    write(u"entry"_s, board);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, Boards, testing::ValuesIn(boardSettings()), testing::PrintToStringParamName());

} // namespace
} // namespace quorvane
