# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT

complete -c pixmallow -f

set -l start __fish_use_subcommand
complete -c pixmallow -n $start -l replace -d 'End the one that runs and take its place'
complete -c pixmallow -n $start -l background -d 'Do not open the panel'
complete -c pixmallow -n $start -l help -d 'Print what the commands are'
complete -c pixmallow -n $start -l version -d 'Print the version'
complete -c pixmallow -n $start -a capture -d 'Begin a capture as its shortcut would'
complete -c pixmallow -n $start -a pin -d 'Show image files above all windows'
complete -c pixmallow -n $start -a edit -d 'Open image files in the editor'
complete -c pixmallow -n $start -a history -d 'Open the window of past captures'
complete -c pixmallow -n $start -a gallery -d 'Open the window of achievements and the pet'
complete -c pixmallow -n $start -a settings -d 'Open the window of all that can be set'
complete -c pixmallow -n $start -a quit -d 'End Pixmallow'
complete -c pixmallow -n $start -a shot -d 'Write a picture of the desktop to a file'
complete -c pixmallow -n $start -a list -d 'Print the screens, windows or past captures'
complete -c pixmallow -n $start -a text -d 'Print the text of pictures'
complete -c pixmallow -n $start -a doctor -d 'Say what does not work here, and what to do about it'

set -l capture '__fish_seen_subcommand_from capture'
set -l kinds region window screen delayed text
complete -c pixmallow -n "$capture; and not __fish_seen_subcommand_from $kinds" -a "$kinds"
complete -c pixmallow -n $capture -l wait -d 'Return when it has ended'
complete -c pixmallow -n $capture -l json -d 'Print all about it'

set -l shot '__fish_seen_subcommand_from shot'
complete -c pixmallow -n $shot -l output -r -F -d 'The file'
complete -c pixmallow -n $shot -l screen -x -d 'One screen'
complete -c pixmallow -n $shot -l window -x -d 'One window'
complete -c pixmallow -n $shot -l area -x -d 'Part of the desktop, X,Y,WxH'
complete -c pixmallow -n $shot -l cursor -d 'With the mouse pointer'
complete -c pixmallow -n $shot -l shadow -d 'With the shadow of the window'
complete -c pixmallow -n $shot -l json -d 'Print what it shows'

set -l list '__fish_seen_subcommand_from list'
set -l lists screens windows history
complete -c pixmallow -n "$list; and not __fish_seen_subcommand_from $lists" -a "$lists"
complete -c pixmallow -n $list -l search -x -d 'Only captures with these words'
complete -c pixmallow -n $list -l json -d 'Print JSON'

set -l text '__fish_seen_subcommand_from text'
complete -c pixmallow -n $text -l json -d 'Print JSON'

set -l doctor '__fish_seen_subcommand_from doctor'
complete -c pixmallow -n $doctor -l online -d 'Ask the address of updates, too'
complete -c pixmallow -n $doctor -l json -d 'Print JSON'

complete -c pixmallow -n '__fish_seen_subcommand_from pin edit text' -F
