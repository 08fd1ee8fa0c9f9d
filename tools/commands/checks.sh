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
    local tool
    tool=$(find_clang_format) || {
        say "The format was not checked: clang-format 14 is not here."
        return 1
    }
    if (cd "$root" && find src tests tools bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
        xargs -0 -r -n 16 -P "$(nproc)" "$tool" --dry-run -Werror); then
        echo "Format: in order"
    else
        say "Format: the lines above want clang-format -i"
        return 1
    fi
}

# summarize RESULTS FAILED: the closing lines, from what ctest wrote; ends the command.
summarize() {
    local all=0 bad=0 left=0
    if [ -e "$1" ]; then
        read -r all bad left < <(awk '
            function number(name) {
                return match($0, "[ \t]" name "=\"[0-9]+") ? substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 3) : 0
            }
            /<testcase/ { exit }
            { all += number("tests"); bad += number("failures"); left += number("disabled") + number("skipped") }
            END { print all + 0, bad + 0, left + 0 }' "$1")
    fi
    echo
    if [ "$2" = 0 ] && [ "$bad" = 0 ] && [ "$all" -gt 0 ]; then
        echo "All is well."
    else
        echo "Something is wrong: see above."
    fi
    echo "$((all - bad - left)) passed, $bad failed, $left skipped"
    [ "$2" = 0 ] && [ "$bad" = 0 ] && [ "$all" -gt 0 ]
    exit $?
}
