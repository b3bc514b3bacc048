# shellcheck shell=bash
# Puts together what runs on a Windows machine what ./test.sh runs under Wine. Source it; do not run it.

# What the programs of tests.list need beside them.
kit_files=(Quorvane.dll MsAbiHost.dll FaultyProgram.exe QuorvaneHost.exe RunTests.exe windows7-imports.txt
    lang samples runtime)

declare -A strip_of=([x64]=x86_64-w64-mingw32-strip [x86]=i686-w64-mingw32-strip)

project_version() { sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/$1/CMakeCache.txt"; }

# stage_part ARCH FOLDER: what is not handed out otherwise goes without its symbols, which nobody there can read.
stage_part() {
    local program programs
    mapfile -t programs <"$build/$1/tests.list"
    mkdir -p "$2"
    (cd "$build/$1/bin" && cp -r "${kit_files[@]}" "${programs[@]/%/.exe}" "$2")
    printf '%s\r\n' "${programs[@]}" >"$2/tests.list"
    for program in "$2"/*.exe; do
        # Else it would write the time of day.
        SOURCE_DATE_EPOCH=0 "${strip_of[$1]}" "$program"
    done
}

# stage_kit FOLDER ARCH...: replaces the folder by a kit of what has been built.
stage_kit() {
    local folder=$1 arch
    shift
    rm -rf "$folder"
    mkdir -p "$folder"
    for arch; do
        stage_part "$arch" "$folder/$arch"
    done
    sed 's/$/\r/' "$project/tests/kit/run.cmd" >"$folder/run.cmd"
    cp "$project/tests/kit/windows-skips.txt" "$project/docs/windows.md" "$folder"
}

# pack_kit FOLDER ARCH...: makes FOLDER/NAME.zip with the one folder NAME in it, and sets kit_name to NAME.
pack_kit() {
    local packages=$1
    shift
    kit_name=quorvane-tests-$(project_version "$1")
    stage_kit "$packages/$kit_name" "$@"
    "$project/tools/lib/write-zip.py" "$packages/$kit_name"
    rm -r "${packages:?}/$kit_name"
}
