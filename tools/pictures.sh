# shellcheck shell=bash
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# The pictures of the documents, each a real run on a virtual desktop. Sourced by ./dev.

# shellcheck disable=SC2154 # root is set by ./dev.

# What every script may call: captures show nothing afterwards.
# shellcheck disable=SC2016
readonly quietly='quietly() {
    mkdir -p ~/.config/Pixmallow
    echo "{\"afterCapture\":\"none\",\"achievementToasts\":false}" >~/.config/Pixmallow/preferences.json
}
'

# picture NAME WIDTHxHEIGHT SCRIPT [OPTION...]: runs the script in a desktop with a realistic
# background and the given options; it leaves its picture at $picture.
picture() {
    local name=$1 size=$2 script=$3
    shift 3
    local programs=$root/build/release background
    background=$(mktemp --suffix=.png)
    QT_QPA_PLATFORM=offscreen "$programs/screen-content" desk "$size" "$background" >/dev/null
    picture=$root/docs/$name.png "$programs/virtual-desktop" --size "$size" --compositor \
        --picture "$background" "$@" -- bash -euc "$quietly$script" >/dev/null
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

    # shellcheck disable=SC2016
    picture card 1440x900 '
        pixmallow capture screen --wait
        sleep 2.2
        scrot -a 1040,500,400,400 -o "$picture"
        pixmallow quit' --tray --clients

    # shellcheck disable=SC2016
    picture editor 1440x900 '
        drag() { xdotool mousemove "$1" "$2" mousedown 1 mousemove "$3" "$4" mousemove "$5" "$6" mouseup 1; }
        cd
        pixmallow shot --output picture.png
        pixmallow edit picture.png
        sleep 2.5
        xdotool key v
        sleep 0.5
        xdotool key r; drag 796 164 900 180 1046 200
        xdotool key a; drag 660 420 700 330 788 212
        xdotool key b; drag 200 210 300 280 450 330
        xdotool key n mousemove 890 470 click 1 mousemove 890 540 click 1
        xdotool key s mousemove 420 600 click 1
        xdotool key t mousemove 560 470 click 1
        sleep 0.5
        xdotool type "Read this"
        sleep 0.5
        xdotool mousemove 1200 760 click 1
        sleep 0.5
        xdotool key v mousemove 700 210
        sleep 0.5
        scrot -u -o "$picture"
        pixmallow quit'

    # shellcheck disable=SC2016
    picture history 1440x900 '
        quietly
        region() {
            pixmallow capture region --wait &
            sleep 1.2
            xdotool mousemove "$1" "$2" mousedown 1 mousemove $(($1 + 40)) $(($2 + 40)) \
                mousemove $(($1 + $3)) $(($2 + $4)) mouseup 1
            wait $!
        }
        region 840 120 480 330; region 60 60 700 500; region 1000 560 320 220
        region 400 500 480 260; region 700 90 560 300; pixmallow capture screen --wait
        pixmallow history
        sleep 2
        scrot -u -o "$picture"
        pixmallow quit'

    # shellcheck disable=SC2016
    picture gallery 1440x900 '
        quietly
        for _ in 1 2 3; do pixmallow capture screen --wait; sleep 0.3; done
        pixmallow gallery
        sleep 2
        scrot -u -o "$picture"
        pixmallow quit'

    # shellcheck disable=SC2016
    picture panel 1440x900 '
        quietly
        for _ in 1 2 3; do pixmallow capture screen --wait; sleep 0.3; done
        pixmallow
        sleep 2
        scrot -a 1080,340,360,560 -o "$picture"
        pixmallow quit' --tray

    # shellcheck disable=SC2016
    picture settings 1440x900 '
        pixmallow settings
        sleep 2
        scrot -u -o "$picture"
        pixmallow quit'
}
