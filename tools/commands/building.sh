# Configuring and building. Sourced by the commands; wants the root folder in $root.

say() {
    printf '%s\n' "$*" >&2
}

die() {
    say "$@"
    exit 1
}

# require_tools: what a build cannot begin without; for systems whose packages have other names.
require_tools() {
    local tool lacking=()
    for tool in cmake ninja c++; do
        command -v "$tool" >/dev/null 2>&1 || lacking+=("$tool")
    done
    [ ${#lacking[@]} -eq 0 ] || die "Cannot build: no ${lacking[*]} found."
}

# configure PRESET: only when there is something to configure; the build itself follows changed CMake files.
configure() {
    local folder="$root/build/$1" log
    if [ -e "$folder/build.ninja" ] && [ "$packages_changed" = no ] &&
        [ ! "$root/CMakePresets.json" -nt "$folder/CMakeCache.txt" ]; then
        return 0
    fi
    mkdir -p "$folder"
    log="$folder/configure.log"
    (cd "$root" && cmake --preset "$1") >"$log" 2>&1 || {
        cat "$log" >&2
        die "Configuring failed: the lines above say what is missing."
    }
    # Ninja looks at the time stamps: a build set up just now need not be set up again.
    touch "$folder/CMakeCache.txt"
}

# build PRESET TARGET...
build() {
    local folder="$root/build/$1"
    shift
    (cd "$folder" && ninja "$@") >&2 || die "The build failed."
}
