# shellcheck shell=bash
# Provides Wine in a separate prefix below the build folder. Sourced by the scripts that run Windows programs. The
# user's own Wine prefix is neither read nor changed.
# shellcheck disable=SC2154  # root: from lib.sh
export WINEPREFIX=$root/build/windows-cross/wine
export WINEARCH=win64
export WINEDEBUG=-all
# No dialogs that offer to download components, which the programs do not need.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='

# Without a console Qt's test programs would print to a debugger only. Wine ignores Qt variables of the host unless they
# have this prefix.
export WINEQT_FORCE_STDERR_LOGGING=1

# Wine aborts a program that draws with a picture font, such as the colour emoji of the host, so it gets a selection of
# outline fonts.
export FONTCONFIG_FILE=$root/build/windows-cross/fonts/fonts.conf

# Where 32-bit Wine is installed, Debian's "wine" starts it; the programs are 64-bit.
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
        # No window manager runs, so waiting for its answers would be useless.
        "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
        # The processes of the set-up may have had no display, and programs that joined them would have none either.
        "$wineserver" --wait
        touch "$WINEPREFIX/ready"
    fi
    exec 8>&-
}

# Starts Wine's background processes. Otherwise the first program would start them and leave them behind with its output
# pipe, whose reader would wait for ever. They stay until end_wine.
start_wine() {
    "$wineserver" --persistent >/dev/null 2>&1 </dev/null
    "$wine" net start RpcSs >/dev/null 2>&1 </dev/null
    "$wine" explorer /desktop >/dev/null 2>&1 </dev/null &
}

# Ends the processes of this prefix only.
end_wine() {
    "$wineserver" --kill || true
}
