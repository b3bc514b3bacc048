#!/usr/bin/env bash
# check-includes.sh [FOLDER]: fails on each include between folders that docs/architecture.md does not allow, as
# "file:line: reason". FOLDER holds the sources (default: this project's). Not checked: tests/ and bench/, which may
# include anything. Nothing else may include them.
. "$(dirname "$0")/../lib/common.sh"

cd "${1:-$project}"
status=0 checked=0

# What the files of a piece may include besides their own piece and the standard library. A piece is a folder without
# the deeper pieces; "modal" is the part of frame/ that dialogs may use; "system" stands for the headers of Windows.
declare -A arrows=(
    [host]=""
    [resources]="system"
    [mfc]="system"
    [dialogs/data]="host"
    [dialogs/base]="dialogs/data mfc system resources"
    [dialogs/printmode]="dialogs/base dialogs/data modal mfc system resources"
    [dialogs/scheme]="dialogs/base dialogs/data modal mfc system resources"
    [dialogs/user]="dialogs/scheme dialogs/base dialogs/data modal mfc system resources"
    [modal]="mfc system resources"
    [frame]="modal dialogs/user dialogs/scheme dialogs/printmode dialogs/base dialogs/data host mfc system resources"
    [refhost]="host system json"
    [refhost/program]="refhost host system"
    [tools]="system"
)

# piece_of PATH: sets piece; empty for a file of no known folder.
piece_of() {
    case "$1" in
    frame/ModalRunner.* | frame/CommonControls.* | frame/DpiAwareness.*) piece=modal ;;
    *)
        piece=${1%/*}
        while [ -z "${arrows[$piece]+set}" ] && [[ $piece == */* ]]; do piece=${piece%/*}; done
        [ -n "${arrows[$piece]+set}" ] || piece=
        ;;
    esac
}

# as_path PATH: sets path to it without "." and "..".
as_path() {
    local part parts kept=()
    IFS=/ read -ra parts <<<"$1"
    for part in "${parts[@]}"; do
        case $part in
        . | "") ;;
        ..) kept=("${kept[@]:0:${#kept[@]}-1}") ;;
        *) kept+=("$part") ;;
        esac
    done
    path=$(IFS=/ && printf '%s' "${kept[*]}")
}

# found_file FILE NAME: sets path to the project's file that an include of NAME in FILE means; fails if there is none.
found_file() {
    local folder
    for folder in "${1%/*}" . mfc; do
        [ -f "$folder/$2" ] || continue
        as_path "$folder/$2"
        return 0
    done
    return 1
}

# target_of FILE NAME: sets target to what an include of NAME in FILE reaches.
target_of() {
    local path piece
    if found_file "$1" "$2"; then
        piece_of "$path"
        target=${piece:-${path%%/*}}
        return
    fi
    case "$2" in
    nlohmann/*) target=json ;;
    */*) target=unknown ;;
    afx*.h) target=mfc ;;
    *.*) target=system ;;
    *) target=standard ;;
    esac
}

# check_include FILE:LINE NAME
check_include() {
    local file=${1%:*} piece target
    checked=$((checked + 1))
    piece_of "$file"
    [ -n "$piece" ] || { complain "$1" "${file%/*}/ is not in the table of tools/checks/check-includes.sh" && return; }
    target_of "$file" "$2"
    [[ " $piece standard ${arrows[$piece]} " == *" $target "* ]] || complain "$1" "$piece may not include $2 ($target)"
}

complain() {
    say "$1: $2"
    status=1
}

includes() {
    find . -path ./build -prune -o -path ./tests -prune -o -path ./bench -prune -o \
        -regex '.*\.\(c\|cc\|cpp\|h\|hpp\|inl\|rc\)' -printf '%P\0' | sort -z |
        xargs -0 --no-run-if-empty grep -HnE '^[[:space:]]*#[[:space:]]*(include|import)'
}

form='^([^:]+:[0-9]+):[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]([^>"]+)[>"]'
while IFS= read -r line; do
    if [[ $line =~ $form ]]; then
        check_include "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    else
        complain "$(cut -d: -f1,2 <<<"$line")" "an include that names no file"
    fi
done < <(includes)
[ "$checked" -gt 0 ] || die "no include found below $PWD"
exit "$status"
