// SPDX-License-Identifier: MIT
#include <loop/Failure.h>
#include <settings/JsonFile.h>
#include <settings/SettingsFile.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

using settingsfile::State;

JsonFile::JsonFile(QString path, SettingsWriter& writer)
    : m_path(std::move(path)),
      m_writer(writer),
      m_isWritable(start()),
      m_self(std::make_shared<JsonFile*>(this)) {
}

JsonFile::~JsonFile() {
    if (m_lacksChanges)
        write();
}

/// Whether the file may be written.
bool JsonFile::start() {
    auto stored = settingsfile::read(m_path);
    m_values = std::move(stored.values);
    if (stored.state == State::Closed)
        reportFailure(u"%1 cannot be read and stays as it is; changes will be lost"_s.arg(m_path));
    if (stored.state != State::NoObject)
        return stored.state != State::Closed;
    const auto aside = m_writer.moveAside(m_path);
    reportFailure(
        aside ? u"%1 could not be understood and is now %2"_s.arg(m_path, *aside)
              : u"%1 cannot be understood and stays as it is; changes will be lost"_s.arg(m_path));
    return aside.has_value();
}

void JsonFile::setValue(const QString& key, const QJsonValue& value) {
    if (m_values.value(key) == value && !m_lacksChanges)
        return;
    m_values.insert(key, value);
    m_changed.insert(key);
    m_isDue = true;
    if (!m_isSettingTogether)
        write();
}

void JsonFile::setTogether(const std::function<void()>& changes) {
    m_isSettingTogether = true;
    changes();
    m_isSettingTogether = false;
    if (m_isDue)
        write();
}

void JsonFile::write() {
    m_isDue = false;
    if (!m_isWritable)
        return;
    m_lacksChanges = false;
    ++m_lastWrite;
    const auto noteOutcomeOf = [self = std::weak_ptr(m_self), number = m_lastWrite](bool written) {
        if (const auto alive = self.lock())
            (*alive)->noteOutcome(written, number);
    };
    m_writer.write({m_path, m_values, m_changed}, noteOutcomeOf);
}

void JsonFile::noteOutcome(bool isWritten, int number) {
    if (!isWritten)
        reportFailure(
            u"%1 cannot be written; the next change and the end of the program try again"_s.arg(
                m_path));
    // A later write is under way, which has these changes, too.
    if (number != m_lastWrite)
        return;
    m_lacksChanges = !isWritten;
    if (isWritten)
        m_changed.clear();
}

} // namespace quorvane
