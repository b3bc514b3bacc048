#!/usr/bin/env bash
# broken-headers.sh ARCH: tools/checks/check-tables.sh has to notice every kind of change that breaks a binary, and to
# name the interface and the position. Each change is made in a copy of the headers.
. "$(dirname "$0")/../../tools/lib/common.sh"

arch=$1
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
status=0

fail() {
    say "$1" "$2"
    status=1
}

# refused CHANGE HEADER SED-SCRIPT EXPECTED...: each expected text starts a line of the check's complaints.
refused() {
    local change=$1 header=$folder/host/$2 script=$3 said expected
    shift 3
    rm -rf "$folder/host"
    cp -r "$project/host" "$folder"
    sed -i -z -E "$script" "$header"
    ! cmp -s "$header" "$project/host/${header##*/}" || die "$change: the header has not changed"
    if said=$("$project/tools/checks/check-tables.sh" "$arch" "$folder" 2>&1); then
        fail "$change was not noticed" ""
        return
    fi
    for expected; do
        grep -qE "^$expected" <<<"$said" || fail "$change: no complaint starts with '$expected':" "$said"
    done
}

refused "an inserted operation" IPrintConfig.h \
    's/(    virtual void SetDotBits)/    virtual void SetInserted(std::int32_t value) = 0;\n\1/' \
    "IPrintConfig, position 6: clang " "IPrintConfig, position 6: GCC "
refused "two operations that changed places" IUserScheme.h \
    's/SetDefaultRangeS\(/SetOther(/; s/SetDefaultRangeM\(/SetDefaultRangeS(/; s/SetOther\(/SetDefaultRangeM(/' \
    "IUserScheme, position 10: clang " "IUserScheme, position 10: GCC "
refused "a virtual destructor" IHostControl.h \
    's/protected:\n    ~IHostControl[^\n]*\n//; s/public:\n/public:\n    virtual ~IHostControl() {}\n/' \
    "IHostControl, position 0: clang " "IHostControl, position 0: GCC "
# Microsoft's compilers put overloads side by side, the last one first; GCC leaves them where they stand.
refused "an overload at the end of a table" IHeadLayoutList.h \
    's/(\nprotected:)/\n    virtual IHeadLayout* GetAt(std::uint16_t id) = 0;\n\1/' \
    "IHeadLayoutList, position 4: clang " "IHeadLayoutList, position 8: GCC "
# No position moves, but its caller passes one argument more.
refused "a structure returned by value" IMaterial.h \
    's/(class IMaterial\n)/struct MaterialId\n{\n    std::uint16_t value;\n};\n\n\1/; s/std::uint16_t GetId/MaterialId GetId/' \
    "IMaterial, position 3: clang " "IMaterial, position 3: GCC "
refused "a wider result" IPrintScheme.h \
    's/std::int8_t GetWave/std::int32_t GetWave/' \
    "IPrintScheme, position 36: clang " "IPrintScheme, position 36: GCC "
refused "a narrower argument" ISchemeList.h \
    's/GetAt\(std::uint32_t/GetAt(std::uint16_t/' \
    "ISchemeList<IUserScheme>, position 3: clang " "ISchemeList<IPrintScheme>, position 3: GCC "
refused "an operation that is gone" IHostData.h \
    's/    virtual void Reserved66[^\n]*\n//' \
    "IHostData, position 66: clang " "IHostData, position 66: GCC "
exit "$status"
