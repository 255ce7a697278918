// SPDX-License-Identifier: MIT
#include <platform/PasteboardTypes.h>

#include <QSet>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr std::array<QStringView, 7> questionsAndOrders{
    u"TARGETS",
    u"TIMESTAMP",
    u"MULTIPLE",
    u"SAVE_TARGETS",
    u"DELETE",
    u"INSERT_SELECTION",
    u"INSERT_PROPERTY",
};

constexpr std::array<QStringView, 7> readFirst{
    u"UTF8_STRING",
    u"text/plain;charset=utf-8",
    u"text/plain",
    u"STRING",
    u"text/uri-list",
    u"text/html",
    u"image/png",
};

auto rankOf(const QString& target) {
    return std::ranges::find(readFirst, QStringView(target)) - readFirst.begin();
}

} // namespace

QStringList contentTypes(const QStringList& targets) {
    QStringList contents;
    QSet<QStringView> known(questionsAndOrders.begin(), questionsAndOrders.end());
    for (const auto& target : targets) {
        if (!target.isEmpty() && !known.contains(target)) {
            known.insert(target);
            contents.append(target);
        }
    }
    return contents;
}

QStringList readingOrder(QStringList targets) {
    std::ranges::stable_sort(targets, {}, rankOf);
    return targets;
}

} // namespace quorvane
