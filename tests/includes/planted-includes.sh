#!/usr/bin/env bash
# planted-includes.sh: tools/checks/check-includes.sh has to pass a small tree in which every allowed kind of include
# stands, and to name file and line of each kind that is not allowed, planted one at a time.
. "$(dirname "$0")/../../tools/lib/common.sh"

check=$project/tools/checks/check-includes.sh
tree=$(mktemp -d)
trap 'rm -r "$tree"' EXIT
status=0

fail() {
    say "$*"
    status=1
}

# write FILE INCLUDED...: each as it would stand behind #include; a bare path stands in quotes.
write() {
    local file=$tree/$1 included
    shift
    mkdir -p "${file%/*}"
    for included; do
        [[ $included == \<* ]] || included="\"$included\""
        say "#include $included"
    done >"$file"
}

make_tree() {
    local framework=("<afxwin.h>" "<windows.h>" "<vector>")
    local page=("${framework[@]}" dialogs/base/Base.h dialogs/data/Data.h frame/ModalRunner.h resources/resource.h)
    write host/Host.h "<cstdint>"
    write host/HostList.h Host.h
    write resources/resource.h
    write resources/Library.rc "<windows.h>" resource.h
    write mfc/afxwin.h "<windows.h>" "<string>" State.h
    write mfc/State.h "<vector>"
    write dialogs/data/Data.h host/Host.h "<string>"
    write dialogs/base/Base.h "${framework[@]}" dialogs/data/Data.h resources/resource.h
    write dialogs/printmode/Mode.cpp "${page[@]}"
    write dialogs/scheme/Scheme.h "${page[@]}"
    write dialogs/user/User.h "${page[@]}" dialogs/scheme/Scheme.h
    write frame/ModalRunner.h "${framework[@]}" frame/CommonControls.h frame/DpiAwareness.h
    write frame/CommonControls.h "<windows.h>"
    write frame/DpiAwareness.h "<windows.h>"
    write frame/Frame.cpp "${framework[@]}" dialogs/user/User.h dialogs/data/Data.h host/Host.h frame/ModalRunner.h
    write refhost/Machine.h host/Host.h "<nlohmann/json.hpp>" "<windows.h>"
    write refhost/program/Main.cpp refhost/Machine.h host/Host.h "<commdlg.h>"
    write tests/AnyTest.cpp dialogs/user/User.h refhost/Machine.h "<afxwin.h>"
    write bench/Bench.cpp dialogs/base/Base.h refhost/Machine.h
}

# refused FILE LINE...: the lines stand in the file in place of its includes; the last one is the fault.
refused() {
    local file=$1 said
    shift
    make_tree
    mkdir -p "$tree/${file%/*}"
    printf '%s\n' "$@" >"$tree/$file"
    said=$("$check" "$tree" 2>&1) && fail "$file: not noticed: ${*: -1}" && return
    [[ $said == "$file:$#: "* && $said != *$'\n'* ]] || fail "$file:$#: ${*: -1}: the complaint is: $said"
    rm "$tree/$file"
}

make_tree
said=$("$check" "$tree" 2>&1) || fail "an allowed include is refused: $said"

refused host/Host.h '#include <cstdint>' '#include <windows.h>'
refused host/Host.h '#include "resources/resource.h"'
refused host/Host.h '#include "dialogs/data/Data.h"'
refused resources/resource.h '#include "host/Host.h"'
refused mfc/State.h '#include "host/Host.h"'
refused mfc/State.h '#include "resources/resource.h"'
refused mfc/State.h '#include "dialogs/base/Base.h"'
refused dialogs/data/Data.h '#include "host/Host.h"' '' '#include <windows.h>'
refused dialogs/data/Data.h '#include <afxstr.h>'
refused dialogs/data/Data.h '#include "dialogs/base/Base.h"'
refused dialogs/data/Data.h '#include "resources/resource.h"'
refused dialogs/base/Base.h '#include "host/Host.h"'
refused dialogs/base/Base.h '#include "frame/ModalRunner.h"'
refused dialogs/base/Base.h '#include "dialogs/scheme/Scheme.h"'
refused dialogs/printmode/Mode.cpp '#include "host/Host.h"'
refused dialogs/printmode/Mode.cpp '#include "dialogs/scheme/Scheme.h"'
refused dialogs/printmode/Mode.cpp '#include "dialogs/user/User.h"'
refused dialogs/scheme/Scheme.h '#include "host/Host.h"'
refused dialogs/scheme/Scheme.h '#include "dialogs/user/User.h"'
refused dialogs/scheme/Scheme.h '#include "dialogs/printmode/Mode.cpp"'
refused dialogs/scheme/Scheme.h '#include "frame/Frame.cpp"'
refused dialogs/user/User.h '#include "host/Host.h"'
refused dialogs/user/User.h '#include "dialogs/printmode/Mode.cpp"'
refused dialogs/user/User.h '#include "refhost/Machine.h"'
refused frame/ModalRunner.h '#include "dialogs/base/Base.h"'
refused frame/ModalRunner.h '#include "dialogs/data/Data.h"'
refused frame/ModalRunner.h '#include "frame/Frame.cpp"'
refused frame/CommonControls.h '#include "dialogs/user/User.h"'
refused frame/DpiAwareness.h '#include "dialogs/user/User.h"'
refused frame/Frame.cpp '#include "refhost/Machine.h"'
refused refhost/Machine.h '#include "dialogs/data/Data.h"'
refused refhost/Machine.h '#include <afxwin.h>'
refused refhost/Machine.h '#include "refhost/program/Main.cpp"'
refused refhost/program/Main.cpp '#include "resources/resource.h"'
refused frame/Frame.cpp '#include "tests/AnyTest.cpp"'
refused frame/Frame.cpp '#include "bench/Bench.cpp"'

# Ways to write an include that must not lead around the table.
refused dialogs/scheme/Scheme.h '#include "../../host/Host.h"'
refused dialogs/scheme/Scheme.h '#include "../user/User.h"'
refused dialogs/scheme/Scheme.h '#include <host/Host.h>'
refused dialogs/data/Data.h '  #  include"../base/Base.h"'
refused dialogs/data/Data.h '#include <State.h>'
refused dialogs/user/User.h '#define HEADER "host/Host.h"' '#include HEADER'
refused frame/Frame.cpp '#include "nowhere/Lost.h"'
refused elsewhere/New.cpp '#include <string>'

find "$tree" -mindepth 1 -delete
mkdir "$tree/host"
! "$check" "$tree" >/dev/null 2>&1 || fail "a folder without any include passes"
exit "$status"
