// SPDX-License-Identifier: MIT
#include "ZoneRules.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

/// Takes bytes from the start of a file; reading past the end leaves it short.
class ByteReader {
public:
    explicit ByteReader(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] bool isShort() const { return m_isShort; }

    [[nodiscard]] QByteArrayView rest() const { return m_rest; }

    /// Empty if there are not so many.
    QByteArrayView take(qsizetype count) {
        m_isShort = m_isShort || count > m_rest.size();
        const auto taken = m_isShort ? QByteArrayView() : m_rest.first(count);
        m_rest = m_isShort ? QByteArrayView() : m_rest.sliced(count);
        return taken;
    }

    template <typename Integer>
    Integer integer() {
        const auto bytes = take(sizeof(Integer));
        return m_isShort ? Integer() : qFromBigEndian<Integer>(bytes.data());
    }

private:
    QByteArrayView m_rest;
    bool m_isShort = false;
};

/// How much of each kind a block has, in the order of the file.
struct BlockHeader {
    char version = 0;
    qsizetype utIndicators = 0;
    qsizetype standardIndicators = 0;
    qsizetype leaps = 0;
    qsizetype times = 0;
    qsizetype types = 0;
    qsizetype characters = 0;

    /// Of what stands between the types and the end of the block.
    [[nodiscard]] qsizetype trailingSize(qsizetype timeSize) const {
        return characters + leaps * (timeSize + 4) + standardIndicators + utIndicators;
    }

    [[nodiscard]] qsizetype size(qsizetype timeSize) const {
        return times * (timeSize + 1) + types * 6 + trailingSize(timeSize);
    }
};

std::optional<BlockHeader> readHeader(ByteReader& reader) {
    if (reader.take(4) != "TZif")
        return std::nullopt;
    BlockHeader header;
    header.version = reader.integer<char>();
    reader.take(15);
    for (auto* count :
         {&header.utIndicators,
          &header.standardIndicators,
          &header.leaps,
          &header.times,
          &header.types,
          &header.characters})
        *count = reader.integer<quint32>();
    return reader.isShort() || header.types == 0 ? std::nullopt : std::optional(header);
}

std::vector<long long> readTimes(ByteReader& reader, qsizetype count, bool isLong) {
    std::vector<long long> times;
    // So many as there can be, whatever the file says.
    const qsizetype size = isLong ? sizeof(qint64) : sizeof(qint32);
    times.reserve(static_cast<std::size_t>(std::min(count, reader.rest().size() / size)));
    for (qsizetype index = 0; index < count && !reader.isShort(); ++index)
        times.push_back(isLong ? reader.integer<qint64>() : reader.integer<qint32>());
    return times;
}

std::vector<LocalOffset> readTypes(ByteReader& reader, qsizetype count) {
    std::vector<LocalOffset> types;
    for (qsizetype index = 0; index < count && !reader.isShort(); ++index) {
        const auto seconds = reader.integer<qint32>();
        const bool isDaylight = reader.integer<char>() != 0;
        reader.take(1); // where the abbreviation begins
        types.push_back({seconds, isDaylight});
    }
    return types;
}

/// The rule at the end of a file, between two line feeds.
QByteArrayView footer(QByteArrayView text) {
    if (!text.startsWith('\n'))
        return {};
    text = text.sliced(1);
    const auto end = text.indexOf('\n');
    return end < 0 ? QByteArrayView() : text.first(end);
}

} // namespace

std::optional<ZoneRules> ZoneRules::parse(QByteArrayView file) {
    ByteReader reader(file);
    auto header = readHeader(reader);
    const bool isLong = header && header->version >= '2';
    if (isLong) {
        // The first block has times of 32 bits, for readers that know no others.
        reader.take(header->size(4));
        header = readHeader(reader);
    }
    if (!header)
        return std::nullopt;
    auto times = readTimes(reader, header->times, isLong);
    const auto indices = reader.take(header->times);
    auto types = readTypes(reader, header->types);
    reader.take(header->trailingSize(isLong ? 8 : 4));
    if (reader.isShort() || !std::ranges::is_sorted(times) ||
        !std::ranges::all_of(types, &LocalOffset::isPossible))
        return std::nullopt;
    ZoneRules rules;
    rules.m_first = types.front();
    rules.m_offsets = std::move(types);
    rules.m_changes = std::move(times);
    rules.m_indices.assign(indices.begin(), indices.end());
    const auto isKnown = [&rules](unsigned char index) {
        return index < rules.m_offsets.size();
    };
    if (!std::ranges::all_of(rules.m_indices, isKnown))
        return std::nullopt;
    rules.m_rule = PosixRule::parse(footer(reader.rest()));
    return rules;
}

LocalOffset ZoneRules::at(long long seconds) const {
    const auto next = std::ranges::upper_bound(m_changes, seconds);
    if (next == m_changes.end() && m_rule)
        return m_rule->at(seconds);
    if (next == m_changes.begin())
        return m_first;
    const auto last = static_cast<std::size_t>(next - m_changes.begin()) - 1;
    return m_offsets[m_indices[last]];
}

} // namespace quorvane
