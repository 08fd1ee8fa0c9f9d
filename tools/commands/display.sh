# Where the program's windows can appear. Sourced by ./run; wants the root folder in $root.

# x_answers: $DISPLAY leads to an X server that lets us in.
x_answers() {
    [ -n "${DISPLAY:-}" ] || return 1
    if command -v xdpyinfo >/dev/null 2>&1; then
        timeout 10 xdpyinfo >/dev/null 2>&1
    else
        local number=${DISPLAY#*:}
        [ "${DISPLAY%%:*}" != "" ] || [ -S "/tmp/.X11-unix/X${number%%.*}" ]
    fi
}

wayland_answers() {
    [ -n "${WAYLAND_DISPLAY:-}" ] || return 1
    case $WAYLAND_DISPLAY in
    /*) [ -S "$WAYLAND_DISPLAY" ] ;;
    *) [ -S "${XDG_RUNTIME_DIR:-}/$WAYLAND_DISPLAY" ] ;;
    esac
}

port_is_free() {
    ! (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null
}

# run_on_vnc PROGRAM: a private X display for one VNC viewer, reachable from this machine only and with a password made
# for this run; it ends with the program. Qt's own VNC platform listens on every network interface, so it is not used.
run_on_vnc() {
    local folder port=5901 cookie password number status=0 server manager
    folder=$(mktemp -d) || die "Cannot make a temporary folder."
    children=()
    # shellcheck disable=SC2064 # the folder of now
    trap "kill \"\${children[@]}\" 2>/dev/null; wait; rm -rf '$folder'" EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    while ! port_is_free "$port"; do port=$((port + 1)); done
    password=$(od -An -N6 -tx1 /dev/urandom | tr -d ' \n' | cut -c1-8)
    printf '%s\n' "$password" | vncpasswd -f >"$folder/password" 2>/dev/null
    cookie=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
    xauth -q -f "$folder/server" add :0 . "$cookie" 2>/dev/null
    mkfifo "$folder/number"
    Xvnc -displayfd 3 -geometry 1024x768 -depth 24 -desktop Quorvex -auth "$folder/server" -nolisten tcp \
        -interface 127.0.0.1 -localhost -rfbport "$port" -SecurityTypes VncAuth -PasswordFile "$folder/password" \
        3>"$folder/number" >"$folder/xvnc.log" 2>&1 &
    server=$!
    children+=("$server")
    read -r -t 30 number <"$folder/number" || {
        cat "$folder/xvnc.log" >&2
        die "The private display did not start."
    }
    export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$folder}"
    export DISPLAY=":$number" XAUTHORITY="$folder/client" QT_QPA_PLATFORM=xcb
    xauth -q -f "$XAUTHORITY" add "$DISPLAY" . "$cookie" 2>/dev/null
    openbox --config-file "$root/tools/commands/openbox.xml" >"$folder/openbox.log" 2>&1 &
    manager=$!
    children+=("$manager")
    wait_for_manager
    say "There is no display here, so Quorvex runs on one of its own: connect a VNC viewer to localhost:$port with the" \
        "password $password (from another machine through: ssh -L $port:localhost:$port $(hostname 2>/dev/null))."
    "$1" &
    children+=("$!")
    wait "$!" || status=$?
    return "$status"
}

# A window that appears before the window manager may never get the focus.
wait_for_manager() {
    local tries
    for tries in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q '0x' && return 0
        sleep 0.05
    done
}
