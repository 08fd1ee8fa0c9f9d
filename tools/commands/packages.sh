# Debian packages: what is missing, and its installation. Sourced by the commands; wants the root folder in $root.

# package_names SECTION...: the packages of these sections of packages.txt.
package_names() {
    awk -v wanted=" $* " '
        { sub(/#.*/, ""); gsub(/[ \t\r]/, "") }
        /^\[.*\]$/ { inside = index(wanted, " " substr($0, 2, length($0) - 2) " "); next }
        inside && $0 != "" && !seen[$0]++' "$root/packages.txt"
}

# missing_packages SECTION...: those of them that are not installed, by one question to the package database.
missing_packages() {
    local names
    names=$(package_names "$@" | tr '\n' ' ')
    # shellcheck disable=SC2086 # the names are words
    dpkg-query -W -f '${Package} ${db:Status-Status}\n' $names 2>/dev/null |
        awk -v wanted="${names% }" '
            $2 == "installed" { installed[$1] = 1 }
            END { n = split(wanted, name, " "); for (i = 1; i <= n; i++) if (!(name[i] in installed)) print name[i] }'
}

# as_root COMMAND...: run it with the rights to install, without ever asking for a password.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo -n "$@"
    fi
}

can_install() {
    command -v apt-get >/dev/null 2>&1 || return 1
    [ "$(id -u)" = 0 ] || { command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; }
}

# install_packages NAME...: quiet when all goes well; shows apt's last words when it does not.
install_packages() {
    local log status=0
    log=$(mktemp) || return 1
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300
        -o APT::Install-Recommends=false -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold)
    {
        # A list that cannot be fetched need not matter: the installation tells.
        as_root "${apt[@]}" update
        as_root "${apt[@]}" install "$@"
    } >"$log" 2>&1 </dev/null || status=$?
    [ "$status" = 0 ] || { grep '^E:' "$log" || cat "$log"; } | tail -n 5 >&2
    rm -f "$log"
    return "$status"
}

# ensure_packages SECTION...: installs what is missing. Succeeds when everything is there; when something cannot be
# installed it says once what, and fails. Sets packages_changed=yes when it installed something.
packages_changed=no
ensure_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null 2>&1; then
        [ "${packages_said:-}" = yes ] || say "This is not a Debian system: going on with the tools that are here." \
            "What is needed stands in packages.txt under Debian's names."
        packages_said=yes
        return 1
    fi
    missing=$(missing_packages "$@" | tr '\n' ' ')
    missing=${missing% }
    [ -n "$missing" ] || return 0
    if ! can_install; then
        say "These packages are missing, and this user may not install them: $missing." \
            "Install them with: sudo apt-get install --no-install-recommends $missing"
        return 1
    fi
    say "Installing: $missing"
    # shellcheck disable=SC2086 # the names are words
    if install_packages $missing; then
        packages_changed=yes
        return 0
    fi
    missing=$(missing_packages "$@" | tr '\n' ' ')
    say "These packages are missing and could not be installed: ${missing% }."
    return 1
}
