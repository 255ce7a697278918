// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace quorvane {

/// The names in one folder of zone data: which are zones, which links, and which a list offers.
/// Taken from the index of the database (tzdata.zi) and its table by country (zone.tab); where
/// these are missing, from the files themselves.
class ZoneIndex {
public:
    struct Entry {
        QByteArrayView name;
        QByteArrayView target; ///< what a link leads to; empty for a zone
    };

    struct Listed {
        QByteArrayView countries; ///< codes of ISO 3166, between commas; empty for none
        QByteArrayView name;
    };

    explicit ZoneIndex(const QString& directory);

    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }

    /// Null for a name that the data do not have.
    [[nodiscard]] const Entry* entry(QByteArrayView name) const;

    /// In the order of the names.
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// In the order of the table.
    [[nodiscard]] const std::vector<Listed>& listed() const { return m_listed; }

    [[nodiscard]] bool isListed(QByteArrayView name) const;

private:
    void readEntries();
    void readListed();

    QByteArray m_text;  ///< that m_entries points into
    QByteArray m_table; ///< that m_listed points into
    std::vector<Entry> m_entries;
    std::vector<Listed> m_listed;
    std::vector<QByteArrayView> m_listedNames; ///< in their order
};

} // namespace quorvane
