#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# One sheet of all dishes, seven in a row, with their names: art/contact_sheet.sh [OUT.jpg]
here=$(dirname "$(readlink -f "$0")")
out=${1:-$here/build/dishes.jpg}
mkdir -p "$(dirname "$out")"
set --
for d in "$here"/dishes/*.dish; do
    n=$(basename "$d" .dish)
    p=$here/rendered/dishes/$n.jpg
    [ -f "$p" ] && set -- "$@" -label "$n $(sed -n 's/^name //p' "$d")" "$p"
done
montage "$@" -resize 320x240 -background '#0b2226' -fill '#e1e17d' -pointsize 13 -geometry 320x240+4+4 -tile 7x "$out"
echo "$out"
