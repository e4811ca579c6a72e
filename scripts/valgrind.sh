#!/usr/bin/env bash
# Loads the plugin's file into a host program, sells a receipt with it and unloads it, all under
# valgrind. An error of memory or a lost byte fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" "${check_packages[@]}"
mkdir -p build
log=build/valgrind.log
if ! { configure_dev && cmake --build --preset dev --target plugin_session; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi

program=$(find build/dev -name plugin_session -type f -perm -u+x)
if ! valgrind --leak-check=full --show-leak-kinds=definite,indirect \
    --errors-for-leak-kinds=definite,indirect --num-callers=40 \
    --suppressions=scripts/valgrind.supp --error-exitcode=9 --log-file="$log" "$program"; then
    cat "$log" >&2
    exit 1
fi
# A program that never ran, or lost something after all, shows no such lines.
grep -q 'ERROR SUMMARY: 0 errors' "$log"
lost=$(grep -E 'definitely lost|All heap blocks were freed' "$log" | head -n 1)
allocations=$(sed -n 's/.*total heap usage: \([0-9,]*\) allocs.*/\1/p' "$log")
case $lost in
    *'All heap blocks were freed'* | *'definitely lost: 0 bytes'*) ;;
    *) cat "$log" >&2; exit 1 ;;
esac
figure "Valgrind, plugin loaded and unloaded" "0 errors, 0 bytes lost, $allocations allocations"
