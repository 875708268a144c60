#!/usr/bin/env bash
# svgs.sh PROGRAM FOLDER [COUNT]: runs compare_svgs or point_svgs over COUNT SVG files (default 500) spread evenly over
# FOLDER. BUILD names the folder of the built programs.
set -eu
program=${1:?usage: svgs.sh compare_svgs|point_svgs FOLDER [COUNT]} folder=${2:?a folder of SVG files} count=${3:-500}
[ "$program" != compare_svgs ] || command -v rsvg-convert >/dev/null ||
    { echo "rsvg-convert is missing: apt-get install librsvg2-bin" >&2; exit 2; }
mapfile -t files < <(find "$folder/" -type f \( -name '*.svg' -o -name '*.svgz' \) | LC_ALL=C sort)
[ ${#files[@]} -gt 0 ] || { echo "no SVG files in $folder" >&2; exit 2; }
step=$(( ${#files[@]} > count ? ${#files[@]} / count : 1 ))
chosen=()
for ((i = 0; i < ${#files[@]} && ${#chosen[@]} < count; i += step)); do chosen+=("${files[i]}"); done
QT_QPA_PLATFORM=offscreen exec "${BUILD:-$(dirname "$(realpath "$0")")/../build/release/bin}/$program" "${chosen[@]}"
