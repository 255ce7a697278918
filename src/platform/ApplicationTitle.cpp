// SPDX-License-Identifier: MIT
#include <platform/ApplicationTitle.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostCharacters = 40;

bool isFitToShow(QChar character) {
    return character.isPrint() && character != u'<' && character != u'>' && character != u'&';
}

QString shortened(const QString& name) {
    return name.size() > mostCharacters ? name.left(mostCharacters - 1) + u"…"_s : name;
}

} // namespace

QString applicationTitle(const QStringList& classes) {
    if (classes.isEmpty())
        return {};
    QString name;
    for (const auto character : classes.last().section(u'.', -1, -1, QString::SectionSkipEmpty)) {
        if (isFitToShow(character))
            name.append(character);
    }
    name = name.simplified();
    if (!name.isEmpty())
        name[0] = name[0].toUpper();
    return shortened(name);
}

} // namespace quorvane
