# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# How the sources are formatted, and looked through for mistakes.

# Other versions format differently, and find other things.
clang_version=14
# More are left to ./dev lint: a change of everything must not take an hour.
most_linted_changes=60

sources() {
    find src tests bench -name '*.h' -o -name '*.cpp' | sort
}

# is_tried TOOL: whether the tool has the version that the tree was tried with.
is_tried() {
    local version
    version=$("$1" --version | sed -nE 's/.*version ([0-9]+).*/\1/p' | head -n 1)
    [[ $version == "$clang_version" ]] && return 0
    echo "dev: left out: the tree was tried with $1 $clang_version (Debian 12's), here is $version" >&2
    return 1
}

format() {
    need lint
    is_tried clang-format || return 0
    local action=(-i)
    case ${1:-} in
    '') ;;
    --check) action=(--dry-run --Werror) ;;
    *) fail "format knows no option $1" ;;
    esac
    sources | xargs clang-format "${action[@]}"
}

# The commit that a change starts from; none in a copy that knows no earlier one.
change_base() {
    local head base
    head=$(git rev-parse --verify --quiet HEAD) || return 0
    base=$(git merge-base HEAD origin/HEAD 2>/dev/null || git merge-base HEAD origin/main 2>/dev/null) || true
    if [[ -z $base || $base == "$head" ]]; then
        base=$(git rev-parse --verify --quiet HEAD~1) || true
    fi
    echo "$base"
}

# changed_sources BASE: a header is seen by way of a source that includes it.
changed_sources() {
    local file
    git diff --name-only --diff-filter=d "$1" -- src tests bench | while read -r file; do
        case $file in
        *.cpp) echo "$file" ;;
        *.h) git grep --files-with-matches --fixed-strings \
            -e "/$(basename "$file")>" -e "\"$(basename "$file")\"" -- '*.cpp' | head -n 1 || true ;;
        esac
    done | sort --unique
}

lint() {
    need build lint
    is_tried clang-tidy || return 0
    local base changed=()
    case ${1:-} in
    '') changed=("(src|tests|bench)/") ;;
    --changed)
        base=$(change_base)
        if [[ -z $base ]]; then
            echo "dev: this copy knows no earlier commit to compare with: nothing linted" >&2
            return 0
        fi
        mapfile -t changed < <(changed_sources "$base")
        ((${#changed[@]} > 0)) || return 0
        ((${#changed[@]} <= most_linted_changes)) ||
            echo "dev: ${#changed[@]} sources changed: linting $most_linted_changes, ./dev lint does all" >&2
        changed=("${changed[@]:0:most_linted_changes}")
        ;;
    *) fail "lint knows no option $1" ;;
    esac
    configure_preset lint
    # Sources include the headers that are made from the protocols.
    cmake --build --preset lint --target quorvane_wayland_protocols >/dev/null
    run-clang-tidy -quiet -j "$(nproc)" -p build/lint "${changed[@]/#/^$PWD/}"
}
