#!/usr/bin/env bash
# check-image.sh ARCH: holds the built DLL against its promises: the exports of its .def file and no others, imports
# from the system's own libraries alone, the hardening flags, relocations, no time stamp.
. "$(dirname "$0")/common.sh"

arch=$1
dll=$build/$arch/bin/Quorvane.dll
declare -A triplet=([x64]=x86_64-w64-mingw32 [x86]=i686-w64-mingw32)
# DYNAMIC_BASE and NX_COMPAT, on x64 HIGH_ENTROPY_VA too.
declare -A flags=([x64]=$((0x160)) [x86]=$((0x140)))
system_libraries='advapi32|comctl32|comdlg32|gdi32|kernel32|msvcrt|ole32|oleaut32|shell32|shlwapi|user32|uxtheme'
dump=$("${triplet[$arch]}-objdump" -p "$dll")

exports() { sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/.*\] //p' <<<"$dump" | tr -d '\r' | tail -n +2 | sort; }
promised_exports() { sed -n 's/^ \+\([A-Za-z]\+\).*/\1/p' "$project/frame/Quorvane.def" | sort; }
imports() { sed -n 's/^\tDLL Name: \(.*\)\.dll$/\1/Ip' <<<"$dump" | tr '[:upper:]' '[:lower:]'; }
characteristics() { sed -n 's/^DllCharacteristics\t*0*\([0-9a-f]*\)$/\1/p' <<<"$dump"; }

diff <(promised_exports) <(exports) || die "$dll exports other names than Quorvane.def"
foreign=$(imports | grep -vxE "$system_libraries" || true)
[ -z "$foreign" ] || die "$dll imports from: $foreign"
[ $((0x$(characteristics) & flags[$arch])) -eq "${flags[$arch]}" ] || die "$dll lacks a hardening flag"
grep -q '\.reloc' <("${triplet[$arch]}-objdump" -h "$dll") || die "$dll has no relocations"
grep -q '^Time/Date.*1970' <<<"$dump" || die "$dll holds a time stamp"
