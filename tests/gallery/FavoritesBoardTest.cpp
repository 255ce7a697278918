// SPDX-License-Identifier: MIT
#include "BoardPicture.h"
#include "BoardSettings.h"
#include "PanelPlay.h"
#include "Samples.h"

#include <support/GalleryFolder.h>

#include <QApplication>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class FavoritesBoard : public testing::TestWithParam<BoardSetting> {
protected:
    AppliedSetting applied{GetParam()};
};

void starNothing(DateTimeModel& model) {
    model.setFavoriteTimeZoneIdentifiers({});
}

void starEverything(DateTimeModel& model) {
    model.setFavoriteTimeZoneIdentifiers(sample::everyZone());
}

TEST_P(FavoritesBoard, NoneAndAllAreWritten) {
    constexpr int columns = 2;
    BoardPicture board(QApplication::palette(), columns);
    board.add(u"No favourites"_s, PanelPlay(GetParam(), starNothing).picture());
    board.add(u"Every zone a favourite"_s, PanelPlay(GetParam(), starEverything).picture());
    const auto image = board.image(GetParam().scale);
    EXPECT_TRUE(image.save(galleryFile(u"favorites-%1"_s.arg(GetParam().name))));
    EXPECT_EQ(image.width(), qRound(1104 * GetParam().scale));
}

INSTANTIATE_TEST_SUITE_P(
    Settings,
    FavoritesBoard,
    testing::Values(
        BoardSetting{.name = u"light"_s},
        BoardSetting{.name = u"dark"_s, .scheme = ColorScheme::Dark}),
    testing::PrintToStringParamName());

} // namespace
} // namespace quorvane
