#!/usr/bin/env bash
# check-test-kit.sh ARCH: packs the test kit of what has been built, unpacks it on a Windows drive and runs a few of its
# tests there. Kits with planted faults must tell of them.
. "$(dirname "$0")/../lib/common.sh"
. "$project/tools/lib/screen.sh"
. "$project/tools/lib/debian-root.sh"
. "$project/tools/lib/test-kit.sh"

arch=$1 status=0
kits=$build/$arch/kits
declare -A other_of=([x64]=x86 [x86]=x64)

# One test at least of what stands beside the programs: files, the host, the library under an editor.
filter='LibraryImage.Imports*Names:LibraryImage.Exports*:NoFault.*:SharedRuntime.*:KitText.*:Screenshot.*:ProgramTest.Main*'
filter+=':EachEditor/EditorOpening.PutsTheFocusIntoTheConfigurationList/*:ForeignHost*'

# whole_kit FOLDER: from the archive, under a name with a blank.
whole_kit() {
    pack_kit "$kits" "$arch"
    python3 -m zipfile -e "$kits/$kit_name.zip" "$kits"
    rm "$kits/$kit_name.zip"
    mv "$kits/$kit_name" "$1"
    printf '%s\n' --filter "$filter" >"$1/arguments"
}

# planted_kit FOLDER PROGRAM ARGUMENT...: of one program that is in no kit.
planted_kit() {
    local folder=$1 program=$2 bin=$build/$arch/bin
    shift 2
    mkdir -p "$folder/$arch"
    cp "$bin/RunTests.exe" "$bin/$program.exe" "$folder/$arch"
    say "$program" >"$folder/$arch/tests.list"
    cp "$project/tests/kit/run.cmd" "$folder"
    say "wine *.IsSkippedByTheList It is on the list" >"$folder/windows-skips.txt"
    printf '%s\n' "$@" >"$folder/arguments"
}

# foreign_part FOLDER: with programs that nobody can start.
foreign_part() {
    mkdir "$1"
    say some_tests >"$1/tests.list"
}

make_kits() {
    rm -rf "$kits"
    mkdir -p "$kits"
    whole_kit "$kits/whole kit"
    planted_kit "$kits/failures" PlantedFailures --filter '*'
    foreign_part "$kits/failures/${other_of[$arch]}"
    planted_kit "$kits/hang" PlantedHang --timeout 1
}

run_kits() {
    start_screen
    trap stop_screen EXIT
    with_wine_of "$own_suite" "$arch" tools/lib/run-kit.sh "$arch"
}

complain() {
    say "$1: $2"
    status=1
}

# expect_end KIT STATUS PATTERN: the exit status of run.cmd, and its last line.
expect_end() {
    local last
    last=$(tr -d '\r' <"$kits/$1/log" | tail -n 1)
    [ "$(cat "$kits/$1/status")" = "$2" ] || complain "$1" "ended with status $(cat "$kits/$1/status"), not $2"
    [[ $last =~ ^$3$ ]] || complain "$1" "closed with \"$last\", not \"$3\""
}

# expect_told KIT TEXT...: in the report.
expect_told() {
    local kit=$1 text
    shift
    for text; do
        grep -qF -- "$text" "$kits/$kit/report.html" || complain "$kit" "the report lacks \"$text\""
    done
}

make_kits
run_kits
expect_end "whole kit" 0 '[1-9][0-9]+ passed, 0 failed, [0-9]+ skipped'
expect_told "whole kit" "Common controls" "EachEditor/EditorOpening.PutsTheFocusIntoTheConfigurationList/FactorySchemes"
expect_end failures 1 '1 passed, 2 failed, 3 skipped'
expect_told failures '&lt;b&gt;&quot;R&amp;D&quot;&lt;/b&gt;' 'src="data:image/png;base64,iVBORw0KGgo' 'as planned' \
    'It is on the list' 'Last test: PlantedCrash.EndsTheProgram' \
    "this system does not start ${other_of[$arch]} programs"
expect_end hang 1 '0 passed, 1 failed, 0 skipped'
expect_told hang 'The program hung and was ended.'
exit "$status"
