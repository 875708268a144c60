#!/bin/sh
# Renders the drawings of this folder into the resource package's source: the pictures of the grid cells (BMP),
# of the grid headers (GIF) and of the languages (PNG), each at 1x and, beside it, at 2x.
# Needs rsvg-convert and ImageMagick. The pictures are kept in the tree, so a build doesn't need either.
set -eu
cd "$(dirname "$0")"
out=../resource
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

for drawing in *.svg; do
    name=${drawing%.svg}
    for zoom in 1 2; do
        suffix=
        [ $zoom = 1 ] || suffix=@2x
        png=$tmp/$name.png
        rsvg-convert -z $zoom "$drawing" -o "$png"
        case $name in
            flag_*)
                convert "$png" -strip -define png:exclude-chunks=date,time "$out/$name$suffix.png" ;;
            lente | Grafetta | Carrello | Elimina)
                # 32 bits with alpha: version 5 header, masks for the four channels.
                convert "$png" -strip -type TrueColorAlpha "BMP:$out/$name$suffix.bmp" ;;
            *)
                # A GIF pixel is either there or not: half-covered pixels keep their colour over white.
                convert "$png" \( -clone 0 -background white -alpha remove -alpha off \) \
                    \( -clone 0 -alpha extract -threshold 50% \) -delete 0 \
                    -compose CopyOpacity -composite -strip "$out/$name$suffix.GIF" ;;
        esac
    done
done
