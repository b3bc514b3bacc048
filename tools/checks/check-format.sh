#!/usr/bin/env bash
# check-format.sh [--mend]: checks every C++ source against .clang-format. With --mend it reformats them.
. "$(dirname "$0")/../lib/common.sh"

cd "$project"
mapfile -t sources < <(find host mfc dialogs frame refhost tests tools bench -name '*.cpp' -o -name '*.h' | sort)
if [ "${1:-}" = --mend ]; then
    clang-format -i "${sources[@]}"
elif ! clang-format --dry-run -Werror "${sources[@]}"; then
    say "Mend it with: tools/checks/check-format.sh --mend"
    exit 1
fi
