#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Lays settings of a voice side by side: for each a spectrogram and the pitch over time as pictures, and the loudness,
# peak, pitch and its spread as a table. Needs festival, festvox-czech-*, ffmpeg, sox and praat.
#     tools/voices/compare.sh FOLDER "Kapr na kmíně." "voice_czech_dita 208 1.16" "voice_czech_dita 222 1.0" …
# A setting is what (hlas …) takes in content/zvuky/melodie.scm: the voice, its pitch in Hz, how much it is stretched.
# "plain voice_czech_dita" is the voice as it comes, without that file's melody.
set -eu
folder=$1 text=$2
shift 2
here=$(cd "$(dirname "$0")" && pwd)
melody=$here/../../content/zvuky/melodie.scm
mkdir -p "$folder"
n=0
for setting in "$@"; do
    n=$((n + 1))
    wav=$folder/$n.wav
    if [ "${setting#plain }" != "$setting" ]; then
        order="(${setting#plain }) (set! after_synth_hooks nil) (set! zakladni-protazeni 1)"
    else
        order="(hlas $setting)"
    fi
    echo "$order (rekni \"$text\" \"$wav\" 1)" | iconv -t iso-8859-2 | festival --pipe "$melody"
    sox "$wav" -n spectrogram -t "$setting" -x 900 -y 257 -o "$folder/$n-spectrogram.png"
    praat --run "$here/pitch.praat" "$(realpath "$wav")" "$(realpath "$folder")/$n-pitch.png" > "$folder/$n-pitch.txt"
    lufs=$(ffmpeg -hide_banner -nostats -i "$wav" -af ebur128=framelog=verbose -f null - 2>&1 |
        sed -n 's/.*I: *\(-[0-9.]*\) LUFS/\1/p' | tail -1)
    peak=$(sox "$wav" -n stats 2>&1 | awk '/Pk lev dB/ { print $4 }')
    printf '%s  %-34s %s LUFS  peak %s dB  %s\n' "$n" "$setting" "$lufs" "$peak" "$(cat "$folder/$n-pitch.txt")"
done
