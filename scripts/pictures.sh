#!/usr/bin/env bash
# Draws the pictures of the window for the docs: four states in both languages, without a display.
#
#   scripts/pictures.sh           into docs/pictures
#   scripts/pictures.sh FOLDER    into that folder
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" "${picture_packages[@]}"
configure_dev >/dev/null
cmake --build --preset dev --target window_pictures >/dev/null
PICTURES=$(realpath -m "${1:-docs/pictures}")
export PICTURES
mkdir -p "$PICTURES"
# A display of its own, so that they look as on a desktop and the same everywhere.
QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 xvfb-run -a -s "-screen 0 1920x1080x24" build/dev/bin/window_pictures
