# shellcheck shell=bash
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# The pictures of the documents, each a real run on a virtual desktop. Sourced by ./dev.

# shellcheck disable=SC2154 # root is set by ./dev.

# picture NAME WIDTHxHEIGHT SCRIPT [OPTION...]: runs the script in a desktop with a realistic
# background and the given options; it leaves its picture at $picture.
picture() {
    local name=$1 size=$2 script=$3
    shift 3
    local programs=$root/build/release background
    background=$(mktemp --suffix=.png)
    QT_QPA_PLATFORM=offscreen "$programs/screen-content" desk "$size" "$background" >/dev/null
    picture=$root/docs/$name.png "$programs/virtual-desktop" --size "$size" --compositor \
        --picture "$background" "$@" -- bash -euc "$script" >/dev/null
    rm -f -- "$background"
    say "docs/$name.png"
}

take_pictures() {
    # The expressions are for the shell inside the desktop.
    # shellcheck disable=SC2016
    picture shot 1440x900 '
        cd
        xterm -fa "DejaVu Sans Mono" -fs 10 -geometry 96x14+560+560 -title "pixmallow" -e sh -c "
            echo \"\$ pixmallow list screens\"; pixmallow list screens
            echo; echo \"\$ pixmallow list windows\"; pixmallow list windows; echo done >listed
            echo; printf \"\$ pixmallow shot --cursor --output shot.png\"; sleep 60" &
        for _ in {1..100}; do [ -e listed ] && break; sleep 0.1; done
        sleep 0.5
        pixmallow shot --cursor --output "$picture"'

    # shellcheck disable=SC2016
    picture region 1440x900 '
        pixmallow capture region --wait &
        sleep 1.5
        xdotool mousemove 620 300 mousedown 1 mousemove 700 400 mousemove 1016 618
        sleep 0.5
        scrot -o "$picture"
        xdotool key Escape
        wait || true'
}
