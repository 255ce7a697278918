// SPDX-License-Identifier: MIT
#include <platform_xdg/XdgSoftwareCentre.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class XdgSoftwareCentreTest : public testing::Test {
protected:
    /// As if the desktop had this file below the folder that stands for all base directories.
    void writeFile(const QString& name, const QByteArray& content) {
        const auto path = folder.filePath(name);
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    bool showPage() {
        XdgSoftwareCentre centre(
            MimeHandlers([this](const char* /*name*/) { return folder.path(); }),
            [this](const QUrl& url) {
                opened.push_back(url);
                return true;
            });
        return centre.showPage(u"org.quorvane.Quorvane"_s);
    }

    QTemporaryDir folder;
    std::vector<QUrl> opened;
};

TEST_F(XdgSoftwareCentreTest, OpensThePageWhereADesktopEntryHandlesIt) {
    writeFile(
        u"applications/mimeinfo.cache"_s,
        "[MIME Cache]\ntext/plain=editor.desktop;\nx-scheme-handler/appstream=centre.desktop;\n");
    EXPECT_TRUE(showPage());
    EXPECT_EQ(opened, std::vector{QUrl(u"appstream:org.quorvane.Quorvane"_s)});
}

TEST_F(XdgSoftwareCentreTest, UserMayHaveChosenTheProgram) {
    writeFile(
        u"mimeapps.list"_s,
        "[Default Applications]\nx-scheme-handler/appstream = centre.desktop\n");
    EXPECT_TRUE(showPage());
}

TEST_F(XdgSoftwareCentreTest, WithoutAnyFileNothingIsOpened) {
    EXPECT_FALSE(showPage());
    EXPECT_TRUE(opened.empty());
}

TEST_F(XdgSoftwareCentreTest, RemovedEmptyAndOtherAssociationsDoNotCount) {
    writeFile(
        u"mimeapps.list"_s,
        "[Removed Associations]\nx-scheme-handler/appstream=centre.desktop;\n"
        "[Default Applications]\nx-scheme-handler/appstream=\n"
        "x-scheme-handler/appstreamer=other.desktop\nx-scheme-handler/appstream\n");
    EXPECT_FALSE(showPage());
    EXPECT_TRUE(opened.empty());
}

TEST_F(XdgSoftwareCentreTest, FolderInPlaceOfAFileIsEmpty) {
    QDir(folder.path()).mkpath(u"applications/mimeinfo.cache"_s);
    EXPECT_FALSE(showPage());
}

} // namespace
} // namespace quorvane
