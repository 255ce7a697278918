#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# hardened.sh PROGRAM: fails, and says why, where the program lacks what dpkg's hardening gives one.
set -euo pipefail
program=$1
lacks=()
# A report of readelf, and what has to stand in it.
require() {
    local what=$1 report=$2 pattern=$3
    grep --quiet --extended-regexp "$pattern" <<<"$report" || lacks+=("$what")
}
header=$(readelf --wide --file-header "$program")
segments=$(readelf --wide --segments "$program")
dynamic=$(readelf --wide --dynamic "$program")
symbols=$(readelf --wide --dyn-syms "$program")
require "a place that changes (PIE)" "$header" 'Type:.*DYN'
require "read-only relocations" "$segments" 'GNU_RELRO'
require "binding at the start" "$dynamic" 'BIND_NOW|Flags:.*NOW'
require "a stack that is no code" "$segments" 'GNU_STACK .* RW +0x'
require "guarded stacks" "$symbols" '__stack_chk_fail'
for what in "${lacks[@]}"; do
    echo "$program lacks $what" >&2
done
((${#lacks[@]} == 0))
