// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QString>
#include <QTranslator>

namespace quorvane {

/// The language of all texts that are no data, for as long as it lives; there has to be an
/// application. Dates and numbers have a locale of their own, UserLocale.
class InterfaceLanguage {
public:
    /// The first of languagesRead() that there is a catalogue for, or else English, in which the
    /// sources are written.
    explicit InterfaceLanguage(const Environment& environment);
    Q_DISABLE_COPY_MOVE(InterfaceLanguage)

    /// As in the names of the catalogues: "de". That of the sources is "en".
    [[nodiscard]] const QString& name() const { return m_name; }

    /// In which it is written.
    [[nodiscard]] Qt::LayoutDirection direction() const;

private:
    QString m_name;
    QTranslator m_ofQt; ///< buttons of messages, names of keys
    QTranslator m_ours;
};

} // namespace quorvane
