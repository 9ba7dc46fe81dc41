#!/bin/sh
# Renders the program's own icons (data/icons/*.svg) to the PNG files the program carries as
# resources, so they show where the toolkit reads no SVG. Needs ImageMagick; run after editing an icon.
set -e
cd "$(dirname "$0")/../data/icons"
mkdir -p png
for svg in *.svg; do
  name=${svg%.svg}
  for size in 24 48; do
    convert -background none -density 384 "$svg" -resize ${size}x${size} -depth 8 -strip "png/$name-$size.png"
  done
done
