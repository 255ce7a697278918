// SPDX-License-Identifier: MIT
#include "X11SelectionTargets.h"

#include <x11_clipboard/X11SelectionSave.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcSave, "quorvane.pasteboard.save", QtFatalMsg)

QStringList namesOf(X11Connection& connection, const X11PropertyValue& atoms) {
    QStringList names;
    for (const auto atom : unitsOf(atoms))
        names.append(connection.atomName(atom));
    return names;
}

} // namespace

X11SelectionSave::X11SelectionSave(
    X11SelectionInbox& inbox,
    MainQueue& queue,
    xcb_atom_t selection,
    xcb_timestamp_t time,
    Done done)
    : m_inbox(inbox),
      m_queue(queue),
      m_selection(selection),
      m_time(time),
      m_done(std::move(done)),
      m_end(queue.after(longestSave, [this] {
          qCDebug(lcSave, "cut off at the end of its time, %lld targets unread", m_unread.size());
          finish();
      })) {
    awaitProgress();
    ask(u"TARGETS"_s, [this](const Answer& answer) { takeTargets(answer); });
}

void X11SelectionSave::ask(const QString& target, std::function<void(Answer)> then) {
    const X11SelectionRequest request{
        m_selection, m_inbox.connection()->atom(target), m_time, std::nullopt};
    m_conversion = std::make_unique<X11SelectionConversion>(
        m_inbox,
        request,
        X11SelectionConversion::Callbacks{[this] { awaitProgress(); }, std::move(then)});
}

void X11SelectionSave::awaitProgress() {
    m_silence = m_queue.after(longestSilence, [this] {
        qCDebug(lcSave, "the owner is silent, %lld targets unread", m_unread.size());
        finish();
    });
}

void X11SelectionSave::takeTargets(const Answer& answer) {
    // An owner that is too old to answer TARGETS may still have a text.
    m_targets = answer ? contentTargets(namesOf(*m_inbox.connection(), *answer))
                       : QStringList{u"UTF8_STRING"_s, u"STRING"_s};
    m_unread = readingOrder(m_targets);
    readNext();
}

void X11SelectionSave::readNext() {
    if (m_unread.isEmpty())
        return finish();
    awaitProgress();
    ask(m_unread.front(),
        [this, target = m_unread.front()](const Answer& answer) { takeContents(target, answer); });
}

void X11SelectionSave::takeContents(const QString& target, const Answer& answer) {
    m_unread.removeFirst();
    if (answer) {
        const auto encoding = m_inbox.connection()->atomName(answer->type);
        m_read[target] = {target, answer->bytes, encoding, answer->unitBits};
    } else {
        qCDebug(lcSave, "%ls cannot be read", qUtf16Printable(target));
    }
    readNext();
}

void X11SelectionSave::finish() {
    m_conversion.reset();
    m_silence.cancel();
    m_end.cancel();
    PasteboardItem item;
    for (const auto& target : std::as_const(m_targets)) {
        if (auto entry = m_read.extract(target))
            item.push_back(std::move(entry.mapped()));
    }
    const auto done = std::move(m_done);
    done(std::move(item));
}

} // namespace quorvane
