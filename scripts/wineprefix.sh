# shellcheck shell=bash
# Wine in a prefix of our own, below the build folder: sourced by the scripts that run Windows programs. Nothing of
# the user's own Wine is read or changed.
# shellcheck disable=SC2154  # root: from lib.sh
export WINEPREFIX=$root/build/windows-cross/wine
export WINEARCH=win64
export WINEDEBUG=-all
# No dialogs that offer to fetch what our programs do not need.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='

# Without a console Qt's test programs would tell what they found to a debugger only. Wine keeps variables of Qt to
# itself, but for those named so.
export WINEQT_FORCE_STDERR_LOGGING=1

# Debian starts 32-bit Wine through "wine" where it is installed; our programs are 64-bit ones.
# shellcheck disable=SC2034  # used by the scripts that source this file
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver64)

provide_wine_prefix() {
    [[ -e $WINEPREFIX/ready ]] && return
    mkdir -p "$(dirname "$WINEPREFIX")"
    exec 8>"$WINEPREFIX.lock"
    flock 8
    if [[ ! -e $WINEPREFIX/ready ]]; then
        rm -rf "$WINEPREFIX"
        "$wine" wineboot --init >"$WINEPREFIX.log" 2>&1 || {
            tail -n 20 "$WINEPREFIX.log" >&2
            fail "Wine could not set up $WINEPREFIX"
        }
        touch "$WINEPREFIX/ready"
    fi
    exec 8>&-
}

# Ends the processes of this prefix only.
end_wine() {
    "$wineserver" --kill || true
}
