// SPDX-License-Identifier: MIT
// The README shows what each format gives; a reader takes it at its word.
#include "Samples.h"

#include <composition/FormatSingle.h>

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

constexpr Instant march9In2026{1773079530}; ///< 14:05:30 in New York

/// The cells of each row of the README's tables, between two of its headings.
QList<QStringList> rows(const QString& from, const QString& to) {
    QFile file(QStringLiteral(QUORVANE_README));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const auto text = QString::fromUtf8(file.readAll());
    const auto start = text.indexOf(from);
    QList<QStringList> result;
    for (const auto& line : text.mid(start, text.indexOf(to, start) - start).split(u'\n')) {
        if (!line.startsWith(u"| "))
            continue;
        QStringList cells = line.mid(2, line.size() - 4).split(u" | "_s);
        for (auto& cell : cells)
            cell.remove(u'`');
        result.append(cells);
    }
    return result;
}

QString inNewYork(DateFormatPreset preset, const QString& pattern = {}) {
    auto how = settings(with, with);
    how.customPattern = pattern;
    return formatSingle(march9In2026, zone("America/New_York"), preset, how);
}

TEST(Readme, ShowsWhatEachFormatGives) {
    const auto table = rows(u"## Formats"_s, u"### A pattern"_s);
    ASSERT_EQ(table.size(), qsizetype(allDateFormatPresets.size())); // a heading, but no Custom
    for (const auto& row : table.mid(1)) {
        const auto preset = dateFormatPreset(row.at(0));
        ASSERT_TRUE(preset.has_value()) << row.at(0).toStdString();
        EXPECT_EQ(inNewYork(*preset).toStdString(), row.at(1).toStdString());
    }
}

TEST(Readme, ShowsWhatEachLetterOfAPatternGives) {
    const auto table = rows(u"### A pattern"_s, u"## Typing"_s);
    ASSERT_GT(table.size(), 10);
    for (const auto& row : table.mid(1)) {
        EXPECT_EQ(
            inNewYork(DateFormatPreset::Custom, row.at(0)).toStdString(), row.at(2).toStdString());
    }
}

} // namespace
} // namespace quorvane
