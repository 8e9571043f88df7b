#!/bin/sh
# The kitchen with the lamp out, graded from the kitchen at rest. Stands in until `art/render.py pozadi konec` has rendered it.
here=$(dirname "$(readlink -f "$0")")
convert "$here/rendered/hlavni/pozadi.jpg" -modulate 100,55 -channel R -evaluate multiply .30 -channel G -evaluate multiply .46 \
    -channel B -evaluate multiply .60 +channel -quality 88 "$here/rendered/pozadi/konec.jpg"
