#!/usr/bin/env bash
# Runs the README's test command in a fresh Debian 12 root that holds nothing but a minimal
# system and what scripts/setup-debian.sh installs, so a missing install step fails here as it
# would on a new machine. Extra arguments are commands run afterwards in the same root, from the
# checkout (CI adds the lint and sanitizer runs).
#
#   scripts/check-fresh.sh                      the README's test command
#   scripts/check-fresh.sh scripts/lint.sh      and then the lint
#
# Needs root (or sudo) and mmdebstrap. Downloaded packages and the compiler cache stay between
# runs outside the root (QUINTARA_FRESH_CACHE, default /var/cache/quintara-fresh; the compiler
# cache is the caller's own, so a warm cache on the machine is a warm cache here).
set -euo pipefail

if [ "$(id -u)" -ne 0 ]; then exec sudo -E "$0" "$@"; fi

repo=$(cd "$(dirname "$0")/.." && pwd)
cache=${QUINTARA_FRESH_CACHE:-/var/cache/quintara-fresh}
ccache_dir=${CCACHE_DIR:-$(ccache -k cache_dir 2>/dev/null || echo "$HOME/.cache/ccache")}
mkdir -p "$cache/archives/partial" "$cache/lists" "$ccache_dir"

command -v mmdebstrap >/dev/null || {
    echo "check-fresh: mmdebstrap is needed (apt-get install mmdebstrap)" >&2
    exit 2
}

# The README's test command, read from the README so the two cannot drift apart.
test_command=$(grep -m1 -E '^scripts/setup-debian\.sh && .*ctest' "$repo/README.md") || {
    echo "check-fresh: no test command found in README.md" >&2
    exit 2
}

# A minimal Debian 12 (apt and its dependencies only), made again once a week.
base="$cache/bookworm-apt.tar"
if [ ! -s "$base" ] || [ -n "$(find "$base" -mtime +7)" ]; then
    echo "check-fresh: making the base Debian 12 root"
    mmdebstrap --quiet --variant=apt bookworm "$base.new" \
        "deb http://deb.debian.org/debian bookworm main" \
        "deb http://deb.debian.org/debian bookworm-updates main" \
        "deb http://deb.debian.org/debian-security bookworm-security main"
    mv "$base.new" "$base"
fi

root=$(mktemp -d /var/tmp/quintara-fresh.XXXXXX)
trap 'rm -rf --one-file-system "$root"' EXIT
tar -C "$root" -xf "$base"

# The checkout as it stands (tracked and new files, no build folders), at a fixed path so the
# compiler cache hits across runs.
mkdir -p "$root/build/quintara"
(cd "$repo" && git ls-files -z --cached --others --exclude-standard | tar --null -T - -cf -) |
    tar -C "$root/build/quintara" -xf -

echo "check-fresh: root $root; running: $test_command"
# A private mount namespace: every mount goes away with the run, whatever happens.
unshare --mount --propagation private -- bash -euo pipefail -c '
    root=$1 cache=$2 ccache_dir=$3; shift 3
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mount -t tmpfs tmpfs "$root/tmp"
    mount --bind "$cache/archives" "$root/var/cache/apt/archives"
    mount --bind "$cache/lists" "$root/var/lib/apt/lists"
    mkdir -p "$root/ccache"
    mount --bind "$ccache_dir" "$root/ccache"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    # apt-get keeps what it downloads, so the next run reads the packages from the cache
    echo "Binary::apt-get::APT::Keep-Downloaded-Packages \"true\";" > "$root/etc/apt/apt.conf.d/99keep"
    for cmd in "$@"; do
        echo "check-fresh: [fresh root] $cmd"
        chroot "$root" /usr/bin/env -i HOME=/root TERM=dumb LANG=C.UTF-8 \
            PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
            CCACHE_DIR=/ccache CCACHE_BASEDIR=/build/quintara CCACHE_NOHASHDIR=1 CCACHE_MAXSIZE=20G \
            bash -euo pipefail -c "cd /build/quintara && $cmd"
    done
' check-fresh "$root" "$cache" "$ccache_dir" "$test_command" "$@"
echo "check-fresh: passed in a fresh Debian 12 root"
