#!/usr/bin/env bash
# Draws the window in the states that the docs show, in each language, into docs/pictures. The same
# window gives the same pictures on one Debian: fonts, style and resolution are set here.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" "${picture_packages[@]}"
configure_dev
cmake --build --preset dev --target window_pictures
folder=docs/pictures
mkdir -p "$folder"
env -u QT_STYLE_OVERRIDE -u QT_QPA_PLATFORMTHEME -u XDG_CURRENT_DESKTOP -u DESKTOP_SESSION \
    QT_QPA_PLATFORM=xcb QT_FONT_DPI=96 QT_SCALE_FACTOR=1 LC_ALL=C.UTF-8 PICTURES="$folder" \
    xvfb-run -a -s '-screen 0 1280x800x24 -dpi 96' \
    build/dev/bin/window_pictures --gtest_filter="${1:-Pictures.OfTheDocs}" --gtest_brief=1
pngquant --force --nofs --speed 1 --strip --ext .png 64 -- "$folder"/*.png
optipng -quiet -o4 "$folder"/*.png
ls -l "$folder"
