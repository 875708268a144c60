#!/usr/bin/env bash
# packaging/tour.sh BIN PACKAGE sample|other: the viewer on the offscreen platform, led through its screens by the test
# driver. Leaves numbered pictures in out/ and names them.
set -u
bin=$1 package=$2 kind=$3
rm -rf out && mkdir -p out
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=$work

# leg NAME SCALE SCRIPT: one run of the program; every command must be answered with "ok":true.
leg() {
    local name=$1 scale=$2 script=$3 screen=packaging/tour-screen.json
    [ "$scale" = 2 ] && screen=packaging/tour-screen-2x.json
    cp packaging/tour-settings.ini "$work/$name.ini"  # the small windows of the cart, large enough to read
    QT_QPA_PLATFORM=offscreen:configfile=$PWD/$screen QT_SCALE_FACTOR=$scale "$bin/viewer_driver" --settings "$work/$name.ini" "$package" <"$script" >"$work/$name.log" 2>"$work/$name.err"
    local status=$?
    if [ $status -ne 0 ] || grep -q '"ok":false' "$work/$name.log"; then
        echo "The tour stopped at \"$name\":" >&2
        grep '"ok":false' "$work/$name.log" >&2
        cat "$work/$name.err" >&2
        exit 1
    fi
}

if [ "$kind" = sample ]; then
    leg sample 1 packaging/tour.jsonl
    leg sample-2x 2 packaging/tour-2x.jsonl
else
    leg other 1 packaging/tour-other.jsonl
fi
for picture in out/*.png; do echo "$picture"; done
