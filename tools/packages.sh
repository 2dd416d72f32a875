# shellcheck shell=bash
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# Installs the Debian packages of tools/packages.txt that are missing. Sourced by ./dev, which
# defines say and fail and runs it at the project's root.

# True after ensure_packages installed something.
packages_changed=false

# packages_of GROUP...: their names, one per line.
packages_of() {
    local group package
    while read -r group package _; do
        [[ -n $package && " $* " == *" $group "* ]] && printf '%s\n' "$package"
    done <tools/packages.txt
    return 0
}

# missing_packages GROUP...: those of them that are not installed.
missing_packages() {
    local -a wanted
    mapfile -t wanted < <(packages_of "$@")
    # It fails when it does not know one of them, which is then missing.
    comm -23 <(printf '%s\n' "${wanted[@]}" | sort) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null |
            sed -n 's/^installed //p' | sort)
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# apt_get ARGUMENT...: speaks only if it fails. Waits for whoever else is installing.
apt_get() {
    local log status deadline=$((SECONDS + 120))
    log=$(mktemp)
    while true; do
        status=0
        as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -qq \
            -o DPkg::Lock::Timeout=120 "$@" >"$log" 2>&1 </dev/null || status=$?
        # By itself it waits for one of its locks, but not for that on the package lists.
        if ((status == 0 || SECONDS >= deadline)) || ! grep -q 'Could not get lock' "$log"; then
            break
        fi
        sleep 1
    done
    if ((status != 0)); then
        cat "$log" >&2
    fi
    rm -f "$log"
    return "$status"
}

# ensure_packages GROUP...
ensure_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is not a Debian system. Should something be missing: tools/packages.txt lists what is needed."
        return
    fi
    local -a missing
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        fail "These packages are missing, and only root can install them: ${missing[*]}"
    fi
    say "Installing ${#missing[@]} Debian packages: ${missing[*]}"
    apt_get update || say "The package lists could not be renewed; trying those at hand."
    apt_get install --no-install-recommends -y "${missing[@]}" ||
        fail "Some packages could not be installed."
    packages_changed=true
}
