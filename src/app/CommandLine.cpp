// SPDX-License-Identifier: MIT
#include "CommandLine.h"

namespace quorvane {

using namespace Qt::StringLiterals;

CommandLine CommandLine::parse(const QStringList& arguments) {
    CommandLine line;
    for (const auto& argument : arguments.sliced(1)) {
        if (argument == "--hidden"_L1)
            line.isHidden = true;
        else
            line.unknown.append(argument);
    }
    return line;
}

} // namespace quorvane
