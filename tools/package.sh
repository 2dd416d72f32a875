# shellcheck shell=bash
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# The Debian package and its check. Sourced by ./dev, which defines build, say and fail and runs it
# at the project's root.

# Makes build/package/pixmallow_*.deb; the same commit makes the same bytes.
make_package() {
    local -x SOURCE_DATE_EPOCH
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null) || SOURCE_DATE_EPOCH=$(stat -c %Y README.md)
    # The toolkit notes in its resources when their files changed, which a clone does not know.
    QT_RCC_SOURCE_DATE_OVERRIDE=1 build package
    rm -f build/package/*.deb
    (cd build/package && cpack >cpack.log 2>&1) || {
        cat build/package/cpack.log >&2
        fail "The package could not be made."
    }
    package=$(echo build/package/pixmallow_*.deb)
}

# system_with PACKAGE FOLDER: nothing but it, what it depends on, a session bus, and the data for reading
# letters.
system_with() {
    local -a sources
    mapfile -t sources < <(find /etc/apt -name '*.sources' -o -name sources.list)
    as_root mmdebstrap --quiet --mode=root --variant=essential \
        --aptopt='APT::Install-Recommends "false"' \
        --hook-dir=/usr/share/mmdebstrap/hooks/file-mirror-automount \
        --include="$1" --include=tesseract-ocr-eng,dbus \
        "$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)" "$2" "${sources[@]}"
    # The bus asks who its user is.
    echo 'user:x:1000:1000::/home/user:/bin/sh' | as_root tee --append "$2/etc/passwd" >/dev/null
    as_root mkdir -p "$2/tmp/.X11-unix"
    as_root install -d -m 700 -o 1000 -g 1000 "$2/home/user" "$2/home/user/runtime"
}

check_same_bytes() {
    local before
    make_package
    before=$(sha256sum <"$package")
    rm -rf build/package
    make_package
    [[ $(sha256sum <"$package") == "$before" ]] || fail "Made twice, the package differs."
}

check_package_files() {
    make_package
    lintian --fail-on error "$package"
    appstreamcli validate --no-net build/package/packaging/*.metainfo.xml
    mandoc -T lint packaging/pixmallow.1
    zsh -n packaging/completions/_pixmallow
    fish --no-execute packaging/completions/pixmallow.fish
}

# Installed where nothing else is but what it depends on, it works.
check_installed_package() {
    local system
    make_package
    system=$(mktemp --directory --tmpdir pixmallow-system.XXXXXX)
    # shellcheck disable=SC2064 # That folder, whatever the variable holds later.
    trap "as_root rm -rf --one-file-system -- '$system'" EXIT
    system_with "$PWD/$package" "$system"
    build/release/virtual-desktop --size 1280x800 --clients -- tools/use-package "$system"
}
