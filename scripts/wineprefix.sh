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

# Wine ends a program that draws with a font of pictures, such as the colour emoji of the host: it gets a choice of
# outline fonts instead.
export FONTCONFIG_FILE=$root/build/windows-cross/fonts/fonts.conf

# Debian starts 32-bit Wine through "wine" where it is installed; our programs are 64-bit ones.
# shellcheck disable=SC2034  # used by the scripts that source this file
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver64)

provide_wine_fonts() {
    local folder=${FONTCONFIG_FILE%/*}
    local font
    mkdir -p "$folder"
    for font in /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf /usr/share/fonts/opentype/noto/NotoSansCJK-*.ttc; do
        [[ -e $font ]] || fail "font is missing: $font"
        ln -sf "$font" "$folder/"
    done
    cat >"$FONTCONFIG_FILE" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>$folder</dir><cachedir>$folder/cache</cachedir></fontconfig>
END
}

provide_wine_prefix() {
    [[ -e $WINEPREFIX/ready && -e $FONTCONFIG_FILE ]] && return
    mkdir -p "$(dirname "$WINEPREFIX")"
    exec 8>"$WINEPREFIX.lock"
    flock 8
    if [[ ! -e $WINEPREFIX/ready || ! -e $FONTCONFIG_FILE ]]; then
        provide_wine_fonts
        rm -rf "$WINEPREFIX"
        "$wine" wineboot --init >"$WINEPREFIX.log" 2>&1 || {
            tail -n 20 "$WINEPREFIX.log" >&2
            fail "Wine could not set up $WINEPREFIX"
        }
        # There is no window manager whose answers were worth waiting for.
        "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
        # What set it up had perhaps no display; programs that join it would have none either.
        "$wineserver" --wait
        touch "$WINEPREFIX/ready"
    fi
    exec 8>&-
}

# Wine's own processes, which the first program would start and leave behind with the pipe to whoever waits for the end
# of its output. They stay until end_wine.
start_wine() {
    "$wineserver" --persistent >/dev/null 2>&1 </dev/null
    "$wine" net start RpcSs >/dev/null 2>&1 </dev/null
    "$wine" explorer /desktop >/dev/null 2>&1 </dev/null &
}

# Ends the processes of this prefix only.
end_wine() {
    "$wineserver" --kill || true
}
