# A root of Debian with nothing in it but apt, for trying things out. Sourced by bash, as root; the packages come from
# where the machine's own apt gets them.

# make_root DIR RELEASE: RELEASE is bookworm (Debian 12) or trixie (Debian 13).
make_root() {
    apt-get update -q
    apt-get install -q -y --no-install-recommends mmdebstrap
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sed -E "s/ [a-z]+((-[a-z]+)? [a-z]+)$/ $2\1/" | sort -u >"$1.list"
    local proxies=()
    mapfile -t proxies < <(apt-config dump | grep -i '^Acquire::.*proxy.* ".\+";$' | sed 's/^/--aptopt=/')
    mmdebstrap --mode=root --variant=apt --skip=cleanup/apt/lists "${proxies[@]}" "$2" "$1" "$1.list"
    cp /etc/resolv.conf "$1/etc/resolv.conf"
    # Where the way to the registry has a certificate of its own, npm needs it in there too.
    cp "${NODE_EXTRA_CA_CERTS:-/dev/null}" "$1/etc/npm-certificates.pem"
}

# in_root DIR COMMAND…: runs a command in it, with /proc and /dev, which go with the command. It is moved to where
# the root is: after a mere chroot the system would refuse user namespaces, and with them the browser engine's sandbox.
in_root() {
    unshare --mount --pid --fork bash -euc '
        mount --bind "$1" "$1"
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
        cd "$1"
        shift
        mount --move . /
        exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/srv LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
            NODE_EXTRA_CA_CERTS=/etc/npm-certificates.pem QT_QPA_PLATFORM=offscreen chroot . "$@"' in_root "$@"
}
