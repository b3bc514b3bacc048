# shellcheck shell=bash
# The project's own Wine prefixes, below build/wine, apart for each version of Wine. Source it; do not run it.

declare -A wine_arch=([x64]=win64 [x64-checked]=win64 [x86]=win32)

# wine_environment ARCH PREFIX
wine_environment() {
    export WINEARCH=${wine_arch[$1]} WINEPREFIX=$2 WINEDEBUG=-all
    # No questions about Mono and Gecko, no menu entries on the user's desktop.
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
}

# fresh_prefix ARCH NAME SETTINGS...: replaces the prefix of this name by a copy of a pristine one, applies settings (files
# of this folder), and makes it the current prefix.
fresh_prefix() {
    local arch=$1 folder prefix pristine settings
    folder=$build/wine/$(wine --version 2>/dev/null | cut -d ' ' -f 1)
    prefix=$folder/$2 pristine=$folder/${wine_arch[$1]}.pristine
    shift 2
    wine_environment "$arch" "$prefix"
    mkdir -p "$folder"
    # All runs for one kind of Windows share the pristine prefix; the first one makes it.
    (flock 9 && WINEPREFIX=$pristine provide_pristine_prefix "$pristine") 9>"$pristine.lock"
    rm -rf "$prefix"
    cp -a --reflink=auto "$pristine" "$prefix"
    for settings; do
        take_settings "$settings"
    done
}

# provide_pristine_prefix FOLDER
provide_pristine_prefix() {
    local stamp
    stamp="$(wine --version) $(cat "$project/tools/lib/wine.reg" "$project/tools/lib/wine.sh" | cksum)"
    [ "$(cat "$1.stamp" 2>/dev/null)" != "$stamp" ] || return 0
    make_pristine_prefix "$1"
    printf '%s\n' "$stamp" >"$1.stamp"
}

# make_pristine_prefix FOLDER
make_pristine_prefix() {
    rm -rf "$1" "$1.stamp"
    timeout -k 5 300 wine wineboot -i >"$1.log" 2>&1 || die "Wine could not make a prefix, see $1.log"
    # Debian's Wine does not find the fonts of Debian's package. The buttons of captions are drawn with this one.
    ln -s /usr/share/wine/fonts/marlett.ttf "$1/drive_c/windows/Fonts/"
    take_settings wine.reg
    timeout -k 5 60 wineserver -w
}

# take_settings FILE
take_settings() {
    (cd "$project/tools/lib" && timeout -k 5 60 wine regedit /S "$1" 2>/dev/null) || die "Wine did not take $1"
}

# end_wine: ends whatever still runs in the current prefix.
end_wine() { wineserver -k 2>/dev/null || true; }
