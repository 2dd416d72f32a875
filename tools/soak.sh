# shellcheck shell=bash
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# The long tests, and the table of what came out. Sourced by ./dev, which defines build, attempt, say
# and wrong_usage and runs it at the project's root.

# In the order in which they run: what 'soak' takes after it, and the row of one that did not run.
soak_parts=(captures disk kills windows rounds desktops packages readers sanitizers)
declare -A soak_titles=(
    [disk]="Ways of writing on a full disk"
    [kills]="Kills while something is written"
    [windows]="Windows that say anything of themselves"
    [captures]="Captures in one process"
    [rounds]="Tests with twenty times the random rounds"
    [desktops]="Tests on virtual desktops, three times each"
    [sanitizers]="Tests with sanitizers"
    [readers]="Reading damaged content, with sanitizers"
    [packages]="The package"
)

# For each part a file with a line for each outcome, as tests/campaign/Outcome.h has it, and one with
# the revision that was tried. They stay for later runs of other parts.
outcomes_folder=build/soak
table=docs/reliability.md

soak() {
    local part begun=$SECONDS
    local -a parts=("$@")
    if ((${#parts[@]} == 0)); then
        parts=("${soak_parts[@]}")
    fi
    for part in "${parts[@]}"; do
        [[ -n ${soak_titles[$part]:-} ]] ||
            wrong_usage "There is no part '$part'; there are ${soak_parts[*]}."
    done
    mkdir -p "$outcomes_folder"
    for part in "${parts[@]}"; do
        rm -f "$outcomes_folder/$part" "$outcomes_folder/$part.revision"
    done
    write_table
    for part in "${parts[@]}"; do
        begin_part "$part"
        "soak_$part"
        write_table
    done
    finish_captures
    write_table
    say "It took $(((SECONDS - begun + 30) / 60)) minutes; the table is in $table"
}

begin_part() {
    revision | paste -sd ' ' >"$outcomes_folder/$1.revision"
    outcomes=$outcomes_folder/$1
    : >"$outcomes"
    export PIXMALLOW_OUTCOMES=$PWD/$outcomes
}

# measure WHAT COMMAND...: what a command that writes no outcome of its own, or fails without one,
# comes to.
measure() {
    local what=$1 begun=$SECONDS lines fails=${#failures[@]}
    lines=$(wc -l <"$outcomes")
    attempt "$@"
    local new
    new=$(tail -n "+$((lines + 1))" "$outcomes")
    if ((${#failures[@]} > fails)); then
        if [[ $new != *$'\tfailed\t'* ]]; then
            outcome "$what" - failed "" $((SECONDS - begun))
        fi
    elif [[ -z $new ]]; then
        outcome "$what" - passed "" $((SECONDS - begun))
    fi
}

# ready PRESET [ARGUMENT...]: builds; an outcome only if that fails.
ready() {
    local fails=${#failures[@]}
    attempt "building $1" build "$@" -- -k 0 # What can be built is of use.
    if ((${#failures[@]} > fails)); then
        outcome "Building the preset $1" - failed "" -
    fi
}

# outcome WHAT COUNT RESULT DETAILS SECONDS
outcome() {
    printf '%s\t%s\t%s\t%s\t%s\n' "$@" >>"$outcomes"
}

# tested WHAT ARGUMENT...: ctest with these arguments, an outcome for all of its tests together.
tested() {
    local what=$1 begun=$SECONDS status=0 log=$outcomes_folder/ctest.log count
    shift
    # Those of them that have outcomes of their own would tell of short rounds.
    env -u PIXMALLOW_OUTCOMES ctest --no-label-summary "$@" 2>&1 | tee "$log" || status=$?
    count=$(sed -n 's/^.*tests failed out of //p' "$log" | tail -n 1)
    local failed
    failed=$(sed -n 's/^\t *[0-9]* - \([^ ]*\) (.*)$/\1/p' "$log" | sort -u | paste -sd ' ')
    outcome "$what" "${count:--}" "$( ((status == 0)) && echo passed || echo failed)" "$failed" \
        $((SECONDS - begun))
    return "$status"
}

# campaign TIMES PROGRAM...: test programs of the release with so many times their usual rounds.
campaign() {
    local times=$1 program status=0
    shift
    for program in "$@"; do
        QT_QPA_PLATFORM=offscreen PIXMALLOW_SOAK=$times "build/release/$program" --gtest_brief ||
            status=$?
    done
    return "$status"
}

soak_disk() {
    ready release --target pixmallow pixmallow-desktop virtual-desktop desktop-client \
        FullDiskTest FullDiskDesktopTest
    measure "Full disk" campaign 1 FullDiskTest FullDiskDesktopTest
}

soak_windows() {
    ready release --target pixmallow pixmallow-desktop virtual-desktop desktop-client HostileWindowsTest
    measure "${soak_titles[windows]}" campaign 50 HostileWindowsTest
}

# 200 of each kind.
soak_kills() {
    ready release --target pixmallow pixmallow-desktop virtual-desktop desktop-client \
        PrefsCrashTest HistoryCrashTest TextIndexCrashTest JournalCrashTest KilledCapturesTest
    measure "Kills of writers" \
        campaign 10 PrefsCrashTest HistoryCrashTest TextIndexCrashTest JournalCrashTest
    measure "Kills of the program" campaign 40 KilledCapturesTest
}

# 10,000 of them. They mostly wait, and the other parts run meanwhile.
soak_captures() {
    ready release --target pixmallow pixmallow-desktop virtual-desktop desktop-client ManyCapturesTest
    say "== ${soak_titles[captures]}, meanwhile"
    campaign 125 ManyCapturesTest >"$outcomes_folder/captures.log" 2>&1 &
    captures=$!
}

finish_captures() {
    if [[ -z ${captures:-} ]]; then
        return
    fi
    say "== ${soak_titles[captures]}, the rest"
    outcomes=$outcomes_folder/captures
    if ! wait "$captures"; then
        failures+=("${soak_titles[captures]}")
        cat "$outcomes_folder/captures.log"
        [[ -s $outcomes ]] || outcome "${soak_titles[captures]}" - failed "" -
    fi
    captures=
}

soak_rounds() {
    ready dev
    PIXMALLOW_SOAK=20 measure "${soak_titles[rounds]}" tested "${soak_titles[rounds]}" \
        --preset dev --label-exclude 'campaign|desktop' --timeout 3600
}

soak_desktops() {
    ready dev
    measure "${soak_titles[desktops]}" tested "${soak_titles[desktops]}" --preset dev \
        --label-regex desktop --label-exclude campaign --repeat until-fail:3 --timeout 3600
}

soak_sanitizers() {
    ready asan
    measure "Tests with sanitizers" tested "Tests with sanitizers" --preset asan --timeout 600
}

# A quarter of a minute for each reader.
soak_readers() {
    ready asan --target ReadersTest
    QT_QPA_PLATFORM=offscreen PIXMALLOW_SOAK=250 measure "Reading damaged content" \
        build/asan/ReadersTest --gtest_brief
}

soak_packages() {
    ensure_packages package
    measure "Packages on a fresh machine" check_fresh_install
    measure "The package, made twice" check_same_bytes
    measure "The package's files" check_package_files
    measure "The package in a system of its own" check_installed_package
}

# The packages can be installed, all of them, where nothing is.
check_fresh_install() {
    local -a packages
    mapfile -t packages < <(packages_of build run test lint package)
    apt-get -s -o Dir::State::status=/dev/null install --no-install-recommends "${packages[@]}" |
        sed -n '/newly installed/p'
}

# In general words, so that nobody learns of whose machine it was.
machine() {
    local kind="machine"
    if grep -qw hypervisor /proc/cpuinfo; then
        kind="virtual machine"
    fi
    printf '%s %s with %s processors, %s GiB of memory, %s' "$(uname -m)" "$kind" "$(nproc)" \
        "$(awk '/^MemTotal/ { print int($2 / 1048576 + 0.5) }' /proc/meminfo)" \
        "$(sed -n 's/^PRETTY_NAME="\(.*\)"$/\1/p' /etc/os-release)"
}

revision() {
    git log -1 --format=%h 2>/dev/null || echo unknown
    # What the run itself writes is no change.
    if [[ -n $(git status --porcelain --untracked-files=no -- ':!docs/reliability.md' 2>/dev/null) ]]; then
        echo "with changes"
    fi
}

# What is known by now. Of a run that is cut off, that is left.
write_table() {
    local part
    {
        echo "# Reliability"
        echo
        echo "What the parts of \`./dev soak\` found when they ran last. It makes this file; rows are never"
        echo "edited by hand."
        echo
        echo "$(date +%Y-%m-%d), on an $(machine)."
        echo
        echo "| what | how many | result | seconds | revision | details |"
        echo "|---|--:|---|--:|---|---|"
        for part in "${soak_parts[@]}"; do
            rows_of "$part"
        done
    } >"$table.new"
    mv "$table.new" "$table"
}

rows_of() {
    if [[ ! -s $outcomes_folder/$1 ]]; then
        echo "| ${soak_titles[$1]} | | did not run to its end | | | |"
        return
    fi
    awk -F '\t' -v revision="$(<"$outcomes_folder/$1.revision")" \
        '{ printf "| %s | %s | %s | %s | %s | %s |\n", $1, $2, $3, $5, revision, $4 }' \
        "$outcomes_folder/$1"
}
