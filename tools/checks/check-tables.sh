#!/usr/bin/env bash
# check-tables.sh ARCH [--write] [FOLDER]: compares host/tables.txt with the tables that two compilers lay out for the
# interfaces: GCC, which builds the library, and clang with the conventions of Microsoft's compilers, which build hosts.
# FOLDER has the headers in its host/ (default: this project). --write replaces host/tables.txt with what clang lays
# out; do that only after adding an operation at the end of a table.
. "$(dirname "$0")/../lib/common.sh"

arch=$1
shift
write=
[ "${1:-}" != --write ] || { write=true && shift; }
folder=${1:-$project}
tables=$project/host/tables.txt
declare -A gcc_of=([x64]=x86_64-w64-mingw32-g++-posix [x86]=i686-w64-mingw32-g++-posix)
declare -A target_of=([x64]=x86_64-pc-windows-msvc [x86]=i686-pc-windows-msvc)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
status=0

# interfaces: every class that the headers define, a template by the types that they name.
interfaces() {
    cat "$folder"/host/I*.h | tr -d '\r' | awk '
        /^template/ { template = 1 }
        /^class I[A-Za-z]+$/ { if (!template) print $2; template = 0 }
        /^using I[A-Za-z]+ = I[A-Za-z]+<I[A-Za-z]+>;$/ { sub(/;/, "", $4); print $4 }
    ' | sort
}

# Neither compiler names a pure operation in its dump, or lays out a table that nobody fills.
make_source() {
    mkdir "$work/host"
    cp "$folder"/host/*.h "$work/host"
    sed -i -z 's/)\s*= 0;/);/g' "$work"/host/*.h
    {
        say '#include "host/Quorvane.h"'
        interfaces | sed 's/.*/void Use(&**object) { *object = new &; }/'
    } >"$work/tables.cpp"
}

# clang_tables: "INTERFACE NUMBER RESULT NAME(ARGUMENTS)"
clang_tables() {
    clang++ "--target=${target_of[$arch]}" -std=c++17 -ffreestanding -fno-rtti -nostdinc++ \
        -I"$project/tools/checks/freestanding" -I"$work" -c -emit-llvm -o /dev/null \
        -Xclang -fdump-vtable-layouts "$work/tables.cpp" >"$work/clang.dump" 2>&1 ||
        die "$(grep -m 5 error "$work/clang.dump")"
    sed -n '/^VFTable for /,/^$/p' "$work/clang.dump" |
        sed -nE 's/^ +([0-9]+) \| (.*[ *&])?(I[A-Za-z]+(<I[A-Za-z]+>)?)::(~?[A-Za-z0-9_]+\(.*)$/\3 \1 \2\5/p' |
        sed -E 's/^(ISchemeList<(I[A-Za-z]+)> [0-9]+ )Scheme (\*.*)/\1\2 \3/; s/ \[Scheme = .*//' |
        sort -k 1,1 -k 2,2n
}

# gcc_tables: "INTERFACE NUMBER NAME". The first two rows of each dump are no operations.
gcc_tables() {
    "${gcc_of[$arch]}" -std=c++17 -I"$work" "-fdump-lang-class=$work/gcc.dump" -fsyntax-only "$work/tables.cpp" \
        >"$work/gcc.log" 2>&1 || die "$(grep -m 5 error "$work/gcc.log")"
    interfaces | awk '
        FNR == NR { wanted[$1] = 1; next }
        /^Vtable for / { name = $3; row = -3; next }
        /^$/ { name = "" }
        name in wanted && ++row >= 0 { sub(/.*::/, ""); print name, row, $0 }
    ' - <(tr -d '\r' <"$work/gcc.dump" | sed '/^[A-Z].*entries$/d') | sort -k 1,1 -k 2,2n
}

promised_names() { sed -E 's/\(.*//; s/^([^ ]+ [0-9]+) .*[ *&]([^ ]+)$/\1 \2/' "$tables"; }

# compare WHO PROMISED FOUND: names the first position of each interface that differs.
compare() {
    awk -v who="$1" '
        { interface = $1; number = $2; sub(/^[^ ]+ [^ ]+ /, ""); names[interface] = 1 }
        number >= count[interface] { count[interface] = number + 1 }
        FNR == NR { promised[interface, number] = $0; next }
        { found[interface, number] = $0 }
        function told(text) { return text == "" ? "nothing" : text }
        END {
            for (interface in names)
                for (number = 0; number < count[interface]; ++number)
                    if (promised[interface, number] != found[interface, number]) {
                        printf "%s, position %d: %s has %s, host/tables.txt promises %s\n", interface, number, who,
                            told(found[interface, number]), told(promised[interface, number])
                        status = 1
                        break
                    }
            exit status
        }
    ' "$2" "$3" || status=1
}

# signature_checks: what GCC has to find true of each row, because its dump tells names alone.
signature_checks() {
    printf '#include %s\n' '"host/Quorvane.h"' '<type_traits>'
    sed -E 's/^([^ ]+) ([0-9]+) (.*[ *&])([A-Za-z0-9_]+)\((.*)\)$/static_assert(std::is_same<decltype(\&\1::\4), \3(\1::*)(\5)>::value, "\1, position \2: GCC has another signature than host\/tables.txt promises");/' "$tables"
}

check_signatures() {
    signature_checks >"$work/signatures.cpp"
    "${gcc_of[$arch]}" -std=c++17 -I"$folder" -fsyntax-only "$work/signatures.cpp" >"$work/signatures.log" 2>&1 ||
        { sed -n 's/.*error: static assertion failed: //p; t; s/.*\(error: .*\)/\1/p' "$work/signatures.log" && status=1; }
}

command -v clang++ >/dev/null || die "clang++ is missing: install clang"
make_source
clang_tables >"$work/clang.tables"
[ -z "$write" ] || cp "$work/clang.tables" "$tables"
gcc_tables >"$work/gcc.tables"
promised_names >"$work/promised.names"
compare "clang for ${target_of[$arch]}" "$tables" "$work/clang.tables"
compare "GCC for $arch" "$work/promised.names" "$work/gcc.tables"
check_signatures
exit "$status"
