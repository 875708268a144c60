#!/usr/bin/env bash
# compare_svgs.sh FOLDER [COUNT]: takes COUNT SVG files (default 500) spread evenly over FOLDER and compares how the
# canvas draws them with rsvg-convert (package librsvg2-bin). PROGRAM names the built compare_svgs.
set -eu
folder=${1:?usage: compare_svgs.sh FOLDER [COUNT]}
count=${2:-500}
program=${PROGRAM:-$(dirname "$(realpath "$0")")/../build/release/bin/compare_svgs}
command -v rsvg-convert >/dev/null || { echo "rsvg-convert is missing: apt-get install librsvg2-bin" >&2; exit 2; }
mapfile -t files < <(find "$folder/" -type f \( -name '*.svg' -o -name '*.svgz' \) | LC_ALL=C sort)
[ ${#files[@]} -gt 0 ] || { echo "no SVG files in $folder" >&2; exit 2; }
step=$(( ${#files[@]} > count ? ${#files[@]} / count : 1 ))
chosen=()
for ((i = 0; i < ${#files[@]} && ${#chosen[@]} < count; i += step)); do chosen+=("${files[i]}"); done
QT_QPA_PLATFORM=offscreen exec "$program" "${chosen[@]}"
