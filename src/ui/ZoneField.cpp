// SPDX-License-Identifier: MIT
#include <ui/ZoneField.h>
#include <ui/ZoneListText.h>

namespace quorvane {

ZoneField::ZoneField(const ZoneDatabase& database, QWidget* parent)
    : QLineEdit(parent),
      m_database(database) {
    setAccessibleName(tr("Time Zones"));
    setPlaceholderText(tr("e.g. Europe/Paris, Asia/Tokyo"));
    connect(this, &QLineEdit::editingFinished, this, [this] {
        Q_EMIT zonesEntered(zonesFromText(text(), m_database));
    });
}

void ZoneField::setZones(const std::vector<TimeZone>& zones) {
    const auto shown = zoneListText(zones);
    // A refresh must not move the cursor of someone who types.
    if (!hasFocus() || !isModified())
        setText(shown);
}

} // namespace quorvane
