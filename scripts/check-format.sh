#!/usr/bin/env bash
# Fails when a C++ file is not formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git ls-files -z '*.h' '*.cpp' plugin/PackagingControl | xargs -0 clang-format --dry-run --Werror
