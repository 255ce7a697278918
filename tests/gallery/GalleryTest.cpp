// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(GalleryWindow, OpensAndClosesWithAllBoards) {
    Gallery gallery;
    gallery.show();
    gallery.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&gallery));
    EXPECT_FALSE(gallery.grab().isNull());
    gallery.close();
}

} // namespace
} // namespace quorvane
