# The format check and the summary. Sourced by ./test; wants the root folder in $root.

# Formatting differs from version to version, so one version decides.
find_clang_format() {
    local name
    for name in clang-format-14 clang-format; do
        command -v "$name" >/dev/null 2>&1 && "$name" --version | grep -q 'version 14\.' && { echo "$name"; return 0; }
    done
    return 1
}

check_format() {
    local tool wrong
    tool=$(find_clang_format) || {
        say "The format was not checked: clang-format 14 is not here."
        return 1
    }
    wrong=$(cd "$root" && find src tests tools bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
        xargs -0 -r -n 16 -P "$(nproc)" "$tool" --dry-run 2>&1 | sed -n 's/^\([^ :]*\):.*warning: code should be.*/\1/p' | sort -u)
    [ -z "$wrong" ] && return 0
    say "These files want $tool -i:" $wrong
    return 1
}

# summarize PASSED FAILED RESULTS...: the closing lines, from what runs of ctest wrote and from further checks that passed
# and failed. Succeeds when all is well.
summarize() {
    local passed=$1 failed=$2 all=0 bad=0 left=0 counts
    shift 2
    counts=$(cat "$@" /dev/null 2>/dev/null | awk '
        function number(name) {
            return match($0, "[ \t]" name "=\"[0-9]+") ? substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 3) : 0
        }
        /<testsuite/ { heading = 1 }
        heading { all += number("tests"); bad += number("failures"); left += number("disabled") + number("skipped") }
        />/ { heading = 0 }
        END { print all + 0, bad + 0, left + 0 }')
    read -r all bad left <<<"$counts"
    echo
    [ "$all" -gt 0 ] || echo "No test was run."
    echo "$((all - bad - left + passed)) passed, $((bad + failed)) failed, $left skipped"
    [ "$all" -gt 0 ] && [ "$bad" = 0 ] && [ "$failed" = 0 ]
}
