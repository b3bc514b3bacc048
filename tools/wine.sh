# shellcheck shell=bash
# Wine prefixes of the project's own, below build/wine; sourced, never run.

declare -A wine_arch=([x64]=win64 [x86]=win32)

# wine_environment ARCH PREFIX
wine_environment() {
    export WINEARCH=${wine_arch[$1]} WINEPREFIX=$2 WINEDEBUG=-all
    # No questions about Mono and Gecko, no menu entries on the user's desktop.
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
}

# fresh_prefix ARCH NAME SETTINGS...: makes build/wine/NAME anew, as a copy of a pristine prefix with further settings
# (files of this folder), and makes it the current one.
fresh_prefix() {
    local arch=$1 prefix=$build/wine/$2 pristine=$build/wine/$1.pristine stamp settings
    shift 2
    wine_environment "$arch" "$prefix"
    stamp="$(wine --version) $(cat "$project/tools/wine.reg" "$project/tools/wine.sh" | cksum)"
    if [ "$(cat "$pristine.stamp" 2>/dev/null)" != "$stamp" ]; then
        WINEPREFIX=$pristine make_pristine_prefix "$pristine"
        printf '%s\n' "$stamp" >"$pristine.stamp"
    fi
    rm -rf "$prefix"
    cp -a --reflink=auto "$pristine" "$prefix"
    for settings; do
        take_settings "$settings"
    done
}

# make_pristine_prefix FOLDER
make_pristine_prefix() {
    rm -rf "$1" "$1.stamp"
    mkdir -p "$build/wine"
    timeout -k 5 300 wine wineboot -i >"$1.log" 2>&1 || die "Wine could not make a prefix, see $1.log"
    # Debian's Wine does not look for its fonts where Debian's package puts them; captions draw their buttons with this.
    ln -s /usr/share/wine/fonts/marlett.ttf "$1/drive_c/windows/Fonts/"
    take_settings wine.reg
    timeout -k 5 60 wineserver -w
}

# take_settings FILE
take_settings() {
    (cd "$project/tools" && timeout -k 5 60 wine regedit /S "$1" 2>/dev/null) || die "Wine did not take $1"
}

# end_wine: ends what still runs in the current prefix.
end_wine() { wineserver -k 2>/dev/null || true; }
