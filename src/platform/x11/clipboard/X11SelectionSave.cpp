// SPDX-License-Identifier: MIT
#include <platform/PasteboardTypes.h>
#include <x11_clipboard/X11SelectionSave.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcSave, "quorvane.pasteboard.save", QtFatalMsg)

constexpr qsizetype bytesPerAtom = 4;

} // namespace

X11SelectionSave::X11SelectionSave(
    X11SelectionInbox& inbox,
    MainQueue& queue,
    xcb_atom_t selection,
    xcb_timestamp_t time,
    Done done,
    qsizetype mostBytes)
    : m_inbox(inbox),
      m_queue(queue),
      m_selection(selection),
      m_time(time),
      m_done(std::move(done)),
      m_bytesLeft(mostBytes),
      m_end(queue.after(longestSave, [this] {
          qCDebug(lcSave, "cut off at the end of its time, %lld targets unread", m_unread.size());
          finish();
      })) {
    awaitProgress();
    ask(m_inbox.connection()->atom("TARGETS"),
        mostTargets * bytesPerAtom,
        [this](const Answer& answer) { takeTargets(answer); });
}

void X11SelectionSave::ask(
    xcb_atom_t target, qsizetype maxBytes, std::function<void(Answer)> then) {
    m_conversion = std::make_unique<X11SelectionConversion>(
        m_inbox,
        X11SelectionRequest{m_selection, target, m_time, maxBytes},
        X11SelectionConversion::Callbacks{[this] { awaitProgress(); }, std::move(then)});
}

void X11SelectionSave::awaitProgress() {
    m_silence = m_queue.after(longestSilence, [this] {
        qCDebug(lcSave, "the owner is silent, %lld targets unread", m_unread.size());
        finish();
    });
}

void X11SelectionSave::takeTargets(const Answer& answer) {
    auto& connection = *m_inbox.connection();
    // An owner that is too old to answer TARGETS may still have a text.
    noteTargets(
        answer ? unitsOf(answer->value)
               : std::vector{connection.atom("UTF8_STRING"), xcb_atom_t{XCB_ATOM_STRING}});
    m_unread = readingOrder(m_targets);
    readNext();
}

void X11SelectionSave::noteTargets(const std::vector<xcb_atom_t>& atoms) {
    const auto names = m_inbox.connection()->atomNames(atoms);
    for (qsizetype i = 0; i < names.size(); ++i)
        m_atoms.emplace(names[i], atoms[static_cast<std::size_t>(i)]);
    m_targets = contentTypes(names);
}

void X11SelectionSave::readNext() {
    if (m_unread.isEmpty())
        return finish();
    awaitProgress();
    ask(m_atoms.at(m_unread.front()),
        m_bytesLeft,
        [this, target = m_unread.front()](const Answer& answer) { takeContents(target, answer); });
}

void X11SelectionSave::takeContents(const QString& target, const Answer& answer) {
    m_unread.removeFirst();
    if (!answer)
        qCDebug(lcSave, "%ls cannot be read", qUtf16Printable(target));
    else if (answer->isCut)
        qCDebug(lcSave, "%ls is too long", qUtf16Printable(target));
    else
        keep(target, answer->value);
    readNext();
}

void X11SelectionSave::keep(const QString& target, const X11PropertyValue& value) {
    const auto encoding = m_inbox.connection()->atomNames({value.type}).front();
    m_bytesLeft -= value.bytes.size();
    m_read[target] = {target, value.bytes, encoding, value.unitBits};
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
