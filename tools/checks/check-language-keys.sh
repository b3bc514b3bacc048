#!/usr/bin/env bash
# check-language-keys.sh: compares the keys that dialogs ask for with the language files, in both directions, and checks
# that the files have the form that the system reads. The keys of a source belong to the section that it passes to
# InitLanguage or to the base class of the editors; without one, to the section that most sources of its folder pass.
# The keys of the base class belong to the section of every editor. A key made by a format ("ECL%d_ID") stands for all
# keys of that form.
. "$(dirname "$0")/../lib/common.sh"

cd "$project"
shopt -s nullglob
status=0

complain() {
    say "$*"
    status=1
}

# found PATTERN FILE...: what the pattern keeps, line breaks counting as blanks.
found() {
    local pattern=$1
    shift
    cat "$@" | tr '\n' ' ' | { grep -oP "$pattern" || true; } | sort -u
}

sections_of() { cat "$@" | tr '\n' ' ' | { grep -oP '(InitLanguage\(|CDlgEditor\(\s*\w+\s*,)\s*L"\K[^"]+' || true; }; }

section_of_most() { sections_of "$@" | sort | uniq -c | sort -rn | awk 'NR == 1 { print $2 }'; }

keys_of() {
    found '\{\s*ID\w+\s*,\s*L"\K[^"]+' "$1"
    found '(GetLanguageText\(|SetControlText\(\s*ID\w+\s*,|Add(Scheme)?Page\([^;"]+,)\s*L"\K[^"]+' "$1"
    found 'Format\(\s*L"\K[A-Z]+%d_[A-Z]+(?=")' "$1"
    [ -z "$(found 'ApplyTitle\(\)' "$1")" ] || say TITLE
}

# asked_in SECTION KEYS: "SECTION<tab>KEY" for every key, made keys with "#" for their number.
asked_in() { [ -z "$2" ] || sed "s|^|$1\t|; s|%d|#|" <<<"$2"; }

# asked: what asked_in prints, of all dialogs.
asked() {
    local file section keys base=dialogs/base/DlgEditor.cpp
    for section in $(found 'CDlgEditor\(\s*\w+\s*,\s*L"\K[^"]+' dialogs/*/*.cpp); do
        asked_in "$section" "$(keys_of "$base")"
    done
    for file in dialogs/*/*.cpp dialogs/*/*.h; do
        [[ $file != dialogs/base/* ]] || continue
        keys=$(keys_of "$file")
        section=$(section_of_most "$file")
        [ -n "$section" ] || section=$(section_of_most "${file%/*}"/*.cpp)
        asked_in "$section" "$keys"
    done
}

# check_form FILE: UTF-16LE with a byte-order mark, CR LF, no key twice, no text empty.
check_form() {
    local text twice bad
    [ "$(head -c 2 "$1" | od -An -tx1)" = " ff fe" ] || { complain "$1: no UTF-16LE byte-order mark" && return; }
    text=$(iconv -f UTF-16 -t UTF-8 "$1") || { complain "$1: no UTF-16 text" && return; }
    ! grep -qv $'\r$' <<<"$text" || complain "$1: a line does not end with CR LF"
    bad=$(tr -d '\r' <<<"$text" | grep -nvE '^(;.*|\[[A-Za-z_]+\]|[^=;[]+=.*[^ ].*|)$' || true)
    [ -z "$bad" ] || complain "$1: no comment, section or key with a text: line $bad"
    twice=$(written "$1" | uniq -d)
    [ -z "$twice" ] || complain "$1: written twice: $twice"
}

# written FILE: "SECTION<tab>KEY" for every key of a language file.
written() {
    iconv -f UTF-16 -t UTF-8 "$1" | tr -d '\r' |
        awk '/^\[/ { section = substr($0, 2, length($0) - 2) } /^[^;[].*=/ { sub(/=.*/, ""); print section "\t" $0 }' | sort
}

# compare FILE WRITTEN: numbers of keys of a made form count as "#".
compare() {
    local line as_asked
    as_asked=$(sed -E 's/\t([A-Z]+)[0-9]+(_ID)$/\t\1#\2/' <<<"$2" | sort -u)
    while read -r line; do
        complain "$1: a dialog asks for [${line/$'\t'/] }, which is missing"
    done < <(comm -23 <(say "$all_asked") <(say "$as_asked"))
    while read -r line; do
        complain "$1: no dialog asks for [${line/$'\t'/] }"
    done < <(comm -13 <(say "$all_asked") <(say "$as_asked"))
}

all_asked=$(asked | sort -u)
[ -n "$all_asked" ] || die "no key found in dialogs/: has the way of asking changed?"
language_files=(resources/lang/*/Quorvane.ini)
[ ${#language_files[@]} -gt 1 ] || die "language files are missing"
for file in "${language_files[@]}"; do
    check_form "$file"
    compare "$file" "$(written "$file")"
done
exit "$status"
