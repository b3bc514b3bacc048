# shellcheck shell=bash
# 32-bit programs run under a real 32-bit Wine. Where the system has none, it is installed in a bare i386 Debian in a
# folder of its own, which is entered by chroot inside a private mount namespace. Source it; do not run it.

x86_root=${QUORVANE_X86_ROOT:-$build/x86-root}
x86_ready=$x86_root/quorvane-ready
x86_log=$build/x86-root.log

system_has_wine32() { [ -x /usr/lib/wine/wine ]; }

# x86_prepare: where no 32-bit Wine can be provided, prints the reason and fails.
x86_prepare() {
    if system_has_wine32; then
        return 0
    elif ! become_root_possible; then
        say "neither root nor sudo is available, so chroot is impossible"
    elif ! as_root unshare --mount --propagation private mount -t tmpfs none /mnt 2>/dev/null; then
        say "this system does not allow mounts, so chroot is impossible"
    elif [ ! -e "$x86_ready" ] && ! x86_make_root >"$x86_log" 2>&1; then
        say "the i386 system could not be made, see $x86_log"
    else
        return 0
    fi
    return 1
}

# x86_make_root: its status is that of the first step that fails. debootstrap also mounts. It runs in a namespace of its
# own, so that nothing stays mounted if it is interrupted.
x86_make_root() {
    local codename mirror
    codename=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")
    mirror=$(system_mirror "$codename")
    as_root rm -rf --one-file-system "$x86_root" &&
        system_proxy &&
        as_root unshare --mount --propagation private env "http_proxy=${http_proxy:-}" \
            debootstrap --arch=i386 --variant=minbase "$codename" "$x86_root" "$mirror" &&
        as_root bash -c 'grep -ls Acquire /etc/apt/apt.conf.d/* | xargs -r cp -t "$0/etc/apt/apt.conf.d"' "$x86_root" &&
        as_root mkdir "$x86_root/quorvane" &&
        x86_enter 0:0 apt-get update -q &&
        x86_enter 0:0 apt-get install -y --no-install-recommends wine wine32 fonts-wine fonts-wqy-microhei \
            libxrender1 libxcursor1 libxi6 libxrandr2 &&
        as_root touch "$x86_ready"
}

# system_mirror CODENAME: prints where this system's own packages come from.
system_mirror() {
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' |
        awk -v release="$1" '$2 == release && $3 == "main" { print $1; exit }'
}

# system_proxy: debootstrap reads the environment, not the settings of apt.
system_proxy() {
    local proxy=
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [ -z "$proxy" ] || http_proxy=$proxy
}

# x86_enter UID:GID COMMAND...: runs a command in the i386 system, which sees this project as /quorvane. The mounts
# live in a namespace of their own and vanish with the command.
x86_enter() {
    local user=$1
    shift
    as_root mkdir -p /tmp/.X11-unix "$x86_root/tmp/.X11-unix"
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
    ' _ "$x86_root" "$project" "$user" "${DISPLAY:-}" "$@"
}
