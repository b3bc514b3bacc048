# shellcheck shell=bash
# Bare Debian systems with a Wine, in folders of their own: one for 32-bit programs, which run under a real 32-bit Wine,
# where this system has none, and one for each Wine that is another Debian's. A root is called SUITE-ARCHITECTURE, as
# Debian names both. It is entered by chroot inside a private mount namespace. Source it; do not run it.

roots=${QUORVANE_ROOTS:-$build/roots}
own_suite=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-unknown}")

# The Debian that has a Wine of this major version.
declare -A suite_with_wine=([8]=bookworm [10]=trixie)
other_wine() { [ "$own_suite" = trixie ] && printf 8 || printf 10; }
declare -A debian_arch=([x64]=amd64 [x64-checked]=amd64 [x86]=i386)
declare -A wine_package=([amd64]=wine64 [i386]=wine32)

system_has_wine32() { [ -x /usr/lib/wine/wine ]; }

# root_for ARCH SUITE: prints the root that runs programs of a build under the Wine of a Debian; nothing where this
# system's own Wine does.
root_for() {
    if [ "$2" != "$own_suite" ] || { [ "$1" = x86 ] && ! system_has_wine32; }; then
        printf '%s-%s' "$2" "${debian_arch[$1]}"
    fi
}

# root_prepare ROOT: where it cannot be provided, prints the reason and fails.
root_prepare() {
    if ! become_root_possible; then
        say "this user is not root and may not use sudo, so chroot is impossible"
    elif ! as_root unshare --mount --propagation private mount -t tmpfs none /mnt 2>/dev/null; then
        say "this system does not allow mounts, so chroot is impossible"
    elif [ ! -e "$roots/$1/quorvane-ready" ] && ! root_make "$1" >"$build/$1.log" 2>&1; then
        say "the root $1 could not be made, see $build/$1.log"
    else
        return 0
    fi
    return 1
}

# root_make ROOT: its status is that of the first step that fails. debootstrap also mounts. It runs in a namespace of
# its own, so that nothing stays mounted if it is interrupted.
root_make() {
    local folder=$roots/$1 suite=${1%-*} arch=${1##*-} mirror
    mirror=$(system_mirror)
    as_root rm -rf --one-file-system "$folder" &&
        as_root mkdir -p "$roots" &&
        system_proxy &&
        as_root unshare --mount --propagation private env "http_proxy=${http_proxy:-}" \
            debootstrap "--arch=$arch" --variant=minbase "$suite" "$folder" "$mirror" &&
        as_root bash -c 'grep -ls Acquire /etc/apt/apt.conf.d/* | xargs -r cp -t "$0/etc/apt/apt.conf.d"' "$folder" &&
        as_root mkdir "$folder/quorvane" &&
        root_enter "$1" 0:0 apt-get update -q &&
        root_enter "$1" 0:0 apt-get install -y --no-install-recommends wine "${wine_package[$arch]}" \
            fonts-wine fonts-wqy-microhei libxrender1 libxcursor1 libxi6 libxrandr2 &&
        as_root touch "$folder/quorvane-ready"
}

# system_mirror: prints where this system's own packages come from.
system_mirror() {
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' |
        awk -v release="$own_suite" '$2 == release && $3 == "main" { print $1; exit }'
}

# system_proxy: debootstrap reads the environment, not the settings of apt.
system_proxy() {
    local proxy=
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [ -z "$proxy" ] || http_proxy=$proxy
}

# root_enter ROOT UID:GID COMMAND...: runs a command in a root, which sees this project as /quorvane. The mounts live in
# a namespace of their own and vanish with the command.
root_enter() {
    local folder=$roots/$1 user=$2
    shift 2
    as_root mkdir -p /tmp/.X11-unix "$folder/tmp/.X11-unix"
    as_root unshare --mount --propagation private bash -c '
        set -e
        root=$1 project=$2 user=$3 display=$4
        shift 4
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
        mount --bind "$project" "$root/quorvane"
        exec chroot --userspec="$user" "$root" env -i HOME=/tmp LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
            PATH=/usr/sbin:/usr/bin:/sbin:/bin DISPLAY="$display" "$@"
    ' _ "$folder" "$project" "$user" "${DISPLAY:-}" "$@"
}

# with_wine_of SUITE ARCH COMMAND...: runs a script of the project, named by its path in it, where a build's programs run
# under the Wine of a Debian.
with_wine_of() {
    local root
    root=$(root_for "$2" "$1")
    shift 2
    if [ -n "$root" ]; then
        root_enter "$root" "$(id -u):$(id -g)" "/quorvane/$1" "${@:2}"
    else
        "$project/$1" "${@:2}"
    fi
}
