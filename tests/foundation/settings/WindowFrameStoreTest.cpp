// SPDX-License-Identifier: MIT
#include <settings/WindowFrameStore.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class WindowFrameStoreTest : public testing::Test {
protected:
    [[nodiscard]] WindowFrameStore store() { return {path(), m_writer}; }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"windows.json"_s); }

private:
    QTemporaryDir m_folder;
    ImmediateSettingsWriter m_writer;
};

TEST_F(WindowFrameStoreTest, FrameIsReadByTheNextRunUnderItsName) {
    store().setFrame(u"Panel"_s, {-1200, 40, 500, 612});
    store().setFrame(u"Preferences"_s, {0, 0, 1, 1});
    EXPECT_EQ(store().frame(u"Panel"_s), QRect(-1200, 40, 500, 612));
    EXPECT_EQ(store().frame(u"Preferences"_s), QRect(0, 0, 1, 1));
    EXPECT_EQ(store().frame(u"panel"_s), std::nullopt);
}

TEST_F(WindowFrameStoreTest, FractionsAreRounded) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"W": {"x": 1.4, "y": -0.6, "width": 10.5, "height": 3}})");
    file.close();
    EXPECT_EQ(store().frame(u"W"_s), QRect(1, -1, 11, 3));
}

TEST_F(WindowFrameStoreTest, MalformedEntryIsNone) {
    for (const char* entry :
         {"null",
          "5",
          "[1, 2, 3, 4]",
          "{}",
          R"({"x": 1, "y": 2, "width": 3})",
          R"({"x": "1", "y": 2, "width": 3, "height": 4})",
          R"({"x": 1, "y": 2, "width": 0, "height": 4})",
          R"({"x": 1, "y": 2, "width": 3, "height": -4})",
          R"({"x": 1e300, "y": 2, "width": 3, "height": 4})",
          R"({"x": 1, "y": -40000, "width": 3, "height": 4})"}) {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(R"({"W": )") + entry + "}");
        file.close();
        EXPECT_EQ(store().frame(u"W"_s), std::nullopt) << entry;
    }
}

} // namespace
} // namespace quorvane
