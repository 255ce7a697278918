// SPDX-License-Identifier: MIT
#include <time/TypedText.h>

#include <QRegularExpression>
#include <QStringList>

namespace quorvane {

namespace {

bool isInvisible(QChar character) {
    return character.category() == QChar::Other_Format;
}

/// The character that keyboards have for it.
QChar typewriterForm(QChar character) {
    switch (character.unicode()) {
    case 0x2018:
    case 0x2019:
    case 0x05F3:
        return u'\'';
    case 0x201C:
    case 0x201D:
    case 0x05F4:
        return u'"';
    case 0x2010:
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2212:
        return u'-';
    case 0xFF0F:
        return u'/';
    case 0xFF1A:
        return u':';
    default:
        return character.isSpace() ? QChar(u' ') : character;
    }
}

} // namespace

QString withAsciiDigits(QStringView text) {
    QString result;
    for (const char32_t character : text.toUcs4()) {
        if (QChar::category(character) == QChar::Number_DecimalDigit)
            result += QString::number(QChar::digitValue(character));
        else
            result += QChar::fromUcs4(character);
    }
    return result;
}

QString comparableText(QStringView text) {
    QString result;
    for (const auto character : withAsciiDigits(text)) {
        if (!isInvisible(character))
            result += typewriterForm(character);
    }
    return result.normalized(QString::NormalizationForm_C).toCaseFolded().simplified();
}

QString looseExpression(const QString& comparable) {
    QStringList letters;
    for (const auto character : comparable) {
        if (character != u'.' && character != u' ')
            letters.append(QRegularExpression::escape(QString(character)));
    }
    return letters.join(QStringLiteral("\\.? ?")) + QStringLiteral("\\.?");
}

} // namespace quorvane
