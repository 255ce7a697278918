# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # read by dev, whose functions these call
#
# The parts of ./dev check that look into programs while they run, or read all sources at once.

# Test programs that own what the system gives: sockets, windows, pipes, files.
handle_owners=(
    foundation platform-dbus platform-portal platform-system platform-tray
    platform-wayland platform-x11 platform-x11-pasteboard
)

# Test programs with a second thread of ours, or against one.
threaded=(foundation app platform-dbus)

# What clazy looks for: all that it is sure of, but for what other rules of this tree decide.
clazy_checks=level0,level1,level2
clazy_checks+=,no-ctor-missing-parent-argument # owners are members here, not parents
clazy_checks+=,no-qstring-allocations          # QT_NO_CAST_FROM_ASCII leaves none unsaid
clazy_checks+=,no-rule-of-three,no-rule-of-two-soft,no-copyable-polymorphic # clang-tidy's subject
clazy_checks+=,no-function-args-by-value       # clang-tidy's subject
clazy_checks+=,no-function-args-by-ref

# Every test, the desktops' with the program of this build.
check_asan() {
    need build desktop metadata
    build_preset asan
    run_ctest asan --label-exclude heavy "$@"
}

check_tsan() {
    need build
    build_preset tsan "${threaded[@]/#/quorvane-test-}"
    run_ctest tsan --tests-regex "^($(IFS='|' && echo "${threaded[*]}"))\$" "$@"
}

check_valgrind() {
    need build valgrind
    local name names=("$@")
    ((${#names[@]} > 0)) || names=("${handle_owners[@]}")
    build_preset dev "${names[@]/#/quorvane-test-}"
    for name in "${names[@]}"; do
        echo "$name"
        # Children are others' programs.
        valgrind --quiet --trace-children=no --child-silent-after-fork=yes \
            --error-exitcode=1 --leak-check=full --show-leak-kinds=definite \
            --errors-for-leak-kinds=definite \
            --suppressions=tests/checks/valgrind.supp \
            "build/tests/quorvane-test-$name" --gtest_brief=1
    done
}

check_coverage() {
    need build desktop metadata coverage
    build_preset coverage
    find build/coverage -name '*.gcda' -delete
    # The figures are of use, too, where a test fails; then this fails in the end.
    local status=0
    run_ctest coverage --label-exclude heavy "$@" || status=$?
    "$python" -B tests/checks/coverage.py build/coverage
    return "$status"
}

check_cppcheck() {
    need cppcheck
    local includes
    mapfile -t includes < <(find src -type d -name include -printf '-I%p\n')
    # Without the headers of Qt, of which it has a description. It cannot read GoogleTest's macros.
    cppcheck -j "$(nproc)" --quiet --error-exitcode=1 --std=c++20 --library=qt --inline-suppr \
        --enable=warning,performance,portability \
        --max-configs=12 "-DQ_DISABLE_COPY_MOVE(Class)=" \
        --suppressions-list=tests/checks/cppcheck.supp "${includes[@]}" src bench
}

# check_clazy [SOURCE...]
check_clazy() {
    need build lint clazy
    configure_preset lint
    cmake --build --preset lint --target quorvane_wayland_protocols >/dev/null
    local found=("$@")
    ((${#found[@]} > 0)) || mapfile -t found < <(sources | grep '\.cpp$')
    printf '%s\n' "${found[@]}" |
        xargs --max-procs="$(nproc)" --max-args=4 clazy-standalone \
            --checks="$clazy_checks" --header-filter='/(src|tests)/' --extra-arg=-Wno-error -p build/lint 2>&1 |
        "$python" -B tests/checks/findings.py
}

# fuzz [TARGET [SECONDS]]
fuzz() {
    local target=${1:-} seconds=${2:-600}
    if [[ ! -d tests/fuzz/corpus/$target || -z $target ]]; then
        echo "the targets are:" && ls tests/fuzz/corpus
        [[ -z $target ]] || fail "no target '$target'"
        return
    fi
    need build fuzz
    build_preset fuzz "quorvane-fuzz-$target"
    mkdir -p "build/fuzz/corpus/$target" build/fuzz/findings
    # What the program says of the inputs is of no use here. New inputs go to the first folder.
    LSAN_OPTIONS=suppressions=$PWD/tests/leaks.supp:print_suppressions=0 \
        "build/fuzz/tests/quorvane-fuzz-$target" \
        -max_total_time="$seconds" -max_len=4096 -timeout=20 -rss_limit_mb=2048 \
        -close_fd_mask=2 -print_final_stats=1 -artifact_prefix="build/fuzz/findings/$target-" \
        "build/fuzz/corpus/$target" "tests/fuzz/corpus/$target"
}

# Every target for ten minutes, or so many seconds.
fuzz_all() {
    local target
    for target in tests/fuzz/corpus/*; do
        fuzz "$(basename "$target")" "${1:-600}"
    done
}

# The tests as on other machines. Rules hold in any locale and zone of the process; views are looked
# at as the tests' own fonts and locale make them, and must not see the machine's.
other_machines() {
    local rules='^(foundation|timezones|composition|model|hotkey|delivery)$' locale zone
    for locale in de_DE.UTF-8 ja_JP.UTF-8 C; do
        QUORVANE_TEST_LOCALE=$locale run_ctest dev --tests-regex "$rules"
    done
    for zone in America/St_Johns Asia/Kathmandu Pacific/Apia; do
        QUORVANE_TEST_ZONE=$zone run_ctest dev --tests-regex "$rules"
    done
    LC_ALL=ja_JP.UTF-8 TZ=Pacific/Apia FONTCONFIG_FILE=/etc/fonts/fonts.conf \
        run_ctest dev --label-exclude heavy
}
