// SPDX-License-Identifier: MIT
#include <testing/PseudoTexts.h>

#include <QCoreApplication>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

// One letter with an accent for each plain one, all in Latin fonts.
constexpr QStringView plainLetters = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr QStringView accentedLetters = u"åƀçđéƒĝħîĵķļɱñöþǫŕšţüṽŵẋýžÅƁÇĐÉƑĜĦÎĴĶĻṀÑÖÞǪŔŠŢÛṼŴẊÝŽ";
static_assert(plainLetters.size() == accentedLetters.size());

QChar accented(QChar letter) {
    const auto place = plainLetters.indexOf(letter);
    return place < 0 ? letter : accentedLetters[place];
}

} // namespace

PseudoTexts::PseudoTexts() {
    // All catalogues have the same texts.
    const bool isThere = m_catalogue.load(u":/translations/quorvane_de.qm"_s);
    Q_ASSERT_X(isThere, "PseudoTexts", "no catalogue in the resources");
}

QString PseudoTexts::pseudo(const QString& text) {
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPlaceholder = at > 0 && text[at - 1] == u'%';
        result += isPlaceholder ? text[at] : accented(text[at]);
    }
    const auto more = (text.size() * 2 + 4) / 5;
    return u'[' + result + u"éñļåñĝéšţéẋţé"_s.repeated(8).left(more) + u']';
}

QString PseudoTexts::translate(
    const char* context, const char* text, const char* disambiguation, int count) const {
    const bool isOfQt = *context == 'Q';
    const bool isKnown =
        isOfQt || !m_catalogue.translate(context, text, disambiguation, count).isNull();
    return isKnown ? pseudo(QString::fromUtf8(text)) : QString();
}

} // namespace quorvane
