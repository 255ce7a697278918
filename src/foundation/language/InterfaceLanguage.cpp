// SPDX-License-Identifier: MIT
#include <language/InterfaceLanguage.h>
#include <language/LanguagesRead.h>

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

// Qt itself names the keys in menus and tooltips. It is to call them as we do, also where its own
// catalogue is not installed.
[[maybe_unused]] constexpr std::array namesOfKeys{
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    QT_TRANSLATE_NOOP("QShortcut", "Alt"),
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    QT_TRANSLATE_NOOP("QShortcut", "Return")};

} // namespace

InterfaceLanguage::InterfaceLanguage(const Environment& environment) : m_name(u"en"_s) {
    for (const auto& language : languagesRead(environment)) {
        if (language == m_name)
            return;
        const auto catalogue = u":/translations/quorvane_%1.qm"_s.arg(language);
        // The translator would try shorter names by itself.
        if (!QFile::exists(catalogue) || !m_ours.load(catalogue))
            continue;
        m_name = language;
        // Not every system has it installed.
        if (m_ofQt.load(
                "qtbase_"_L1 + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&m_ofQt);
        QCoreApplication::installTranslator(&m_ours);
        return;
    }
}

Qt::LayoutDirection InterfaceLanguage::direction() const {
    return QLocale(m_name).textDirection();
}

} // namespace quorvane
