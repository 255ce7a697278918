// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <random>
#include <string>

namespace quorvane {

/// Draws values at random: others in each run, the same ones again where the seed is given.
class Draws {
public:
    Draws() : m_seed(givenSeed() != 0 ? givenSeed() : newSeed()), m_generator(m_seed) {}

    /// For SCOPED_TRACE: how a failure is had again.
    [[nodiscard]] std::string origin() const {
        return "drawn with --gtest_random_seed=" + std::to_string(m_seed);
    }

    /// Both ends may come.
    [[nodiscard]] int number(int first, int last) {
        return std::uniform_int_distribution(first, last)(m_generator);
    }

    [[nodiscard]] double number(double first, double end) {
        return std::uniform_real_distribution(first, end)(m_generator);
    }

    [[nodiscard]] bool flag() { return number(0, 1) == 1; }

    template <typename Values>
    [[nodiscard]] const auto& oneOf(const Values& values) {
        return values[static_cast<std::size_t>(number(0, static_cast<int>(std::size(values)) - 1))];
    }

    /// Of characters that files, patterns and languages treat in a way of their own.
    [[nodiscard]] QString text(int longest) {
        static const QString characters = QStringLiteral("aZ09 '\"\\/%{}[],:\n\t\u00e9\u05d0\u0663")
                                              .append(QChar())
                                              .append(QChar(0xFFFF))
                                              .append(QStringLiteral("\u202e\u3042"));
        QString text;
        for (int left = number(0, longest); left > 0; --left)
            text.append(characters[number(0, static_cast<int>(characters.size()) - 1)]);
        return text;
    }

private:
    // GoogleTest's own seeds go up to here.
    static constexpr int greatestSeed = 99999;

    [[nodiscard]] static unsigned int givenSeed() {
        return static_cast<unsigned int>(GTEST_FLAG_GET(random_seed));
    }

    [[nodiscard]] static unsigned int newSeed() {
        std::random_device device;
        return static_cast<unsigned int>(std::uniform_int_distribution(1, greatestSeed)(device));
    }

    unsigned int m_seed;
    std::mt19937 m_generator;
};

} // namespace quorvane
