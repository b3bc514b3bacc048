#!/usr/bin/env bash
# Builds what is handed out, and packs it. See usage.
. "$(dirname "$0")/tools/lib/common.sh"
. "$project/tools/lib/test-kit.sh"

usage() {
    cat <<'TEXT'
Usage: ./package.sh --tests
Installs the packages that are missing, builds for x64 and x86, and packs what has been built into build/package.
  --tests   make quorvane-tests-VERSION.zip: every test program with a run.cmd that runs them on Windows.
            docs/windows.md says how.
  --help    show this text
TEXT
}

case "$# ${1:-}" in
"1 --tests") ;;
"1 --help") usage && exit ;;
*) usage >&2 && exit 2 ;;
esac

install_missing "${x64_packages[@]}" "${x86_packages[@]}" clang lld python3
build_preset x64
build_preset x86
pack_kit "$build/package" x64 x86
say "Packed: build/package/$kit_name.zip"
