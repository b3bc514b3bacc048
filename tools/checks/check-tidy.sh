#!/usr/bin/env bash
# check-tidy.sh [--all]: holds the sources of the library and of the reference host against .clang-tidy, as the build
# in build/x64 compiles them. Findings are "file:line:col: what [check]". Without --all, and without CI=true, only
# sources that have changed since the branch left main, or since the last commit on main itself, and those that
# include a changed header.
. "$(dirname "$0")/../lib/common.sh"

cd "$project"
commands=$build/x64/compile_commands.json
compiler=x86_64-w64-mingw32-g++-posix
folders=(mfc dialogs frame refhost)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# include_folders: GCC's, without those of its own intrinsics, which clang has of its own.
include_folders() {
    local own
    own=$("$compiler" -print-file-name=include)
    "$compiler" -std=c++17 -E -x c++ -v - </dev/null 2>&1 | sed -n '/^#include </,/^End/s/^ //p' |
        grep -vxF -e "$own" -e "$own-fixed"
}

compiled() { find "${folders[@]}" -name '*.cpp' | sort; }

# changed: every path that differs from where this work began; fails if that cannot be told.
changed() {
    local base
    base=$(git merge-base HEAD origin/main 2>/dev/null || git merge-base HEAD main 2>/dev/null) || return
    [ "$base" != "$(git rev-parse HEAD)" ] || base=$(git rev-parse --verify --quiet HEAD~1) || return
    git diff --name-only "$base"
    git ls-files --others --exclude-standard
}

# touched: the compiled sources among the changed files, and those that include a changed header.
touched() {
    local file
    while read -r file; do
        case $file in
        *.cpp) [ ! -e "$file" ] || compiled | grep -xF -- "$file" || true ;;
        *.h) compiled | xargs grep -lE "^#include [<\"]($file|${file##*/})[>\"]" || true ;;
        .clang-tidy | tools/checks/check-tidy.sh) compiled ;;
        esac
    done <"$work/changed" | sort -u
}

wanted() {
    if [ "${1:-}" != --all ] && [ "${CI:-}" != true ] && changed >"$work/changed" 2>/dev/null; then
        touched
    else
        compiled
    fi
}

# tidy FILES: leaves what clang-tidy says in the work folder, one file for each source.
tidy() {
    local folder arguments=(--extra-arg=--target=x86_64-w64-windows-gnu --extra-arg=-nostdinc++ --extra-arg=-nostdlibinc)
    while read -r folder; do arguments+=("--extra-arg=-isystem$folder"); done < <(include_folders)
    # clang cannot read what GCC has precompiled.
    sed -E 's/ -Winvalid-pch//g; s/ -include [^ ]*cmake_pch[^ ]*//g' "$commands" >"$work/compile_commands.json"
    xargs -r -n 1 -P "$(nproc)" bash -c 'clang-tidy -p "$0" --quiet "$@" >"$0/$$.said" 2>&1' \
        "$work" "${arguments[@]}" <"$1"
}

# findings: each once, though every source that includes a header tells of it.
findings() {
    cat "$work"/*.said |
        sed -nE "s#^$project/##; s#,-warnings-as-errors\]\$#]#; s#^([^ ]+:[0-9]+:[0-9]+: )(error|warning): #\1#p" |
        sort -u | sort -s -t : -k 1,1 -k 2,2n
}

[ -e "$commands" ] || die "$commands is missing: run cmake --preset x64"
wanted "$@" >"$work/wanted"
tidy "$work/wanted" && exit
findings >"$work/findings"
[ -s "$work/findings" ] || die "clang-tidy failed: $(cat "$work"/*.said)"
cat "$work/findings"
exit 1
