# The figures of a run of all checks. Sourced, not run; with the project's top as the current
# directory.
# shellcheck shell=bash

figures=build/figures.txt

# figure NAME VALUE: notes what a check found, under a name of its own.
figure() {
    mkdir -p build
    printf '%s\t%s\n' "$1" "$2" >> "$figures"
    printf '%s: %s\n' "$1" "$2"
}

# print_figures: all that was noted, as a table.
print_figures() {
    awk -F '\t' '
        { name[NR] = $1; value[NR] = $2; if (length($1) > width) width = length($1) }
        END { for (i = 1; i <= NR; ++i) printf "  %-*s  %s\n", width, name[i], value[i] }
    ' "$figures"
}

# tests_told DIRECTORY: how many tests passed and failed in the last run of ctest there. A program of
# tests tells how many it ran; any other test of ctest's is one.
tests_told() {
    awk '
        /^[0-9]+\/[0-9]+ Testing: / { passed = failed = 0 }
        /^\[  PASSED  \] [0-9]+ test/ { passed = $4 }
        /^\[  FAILED  \] [0-9]+ tests?, listed below:/ { failed = $4 }
        /^Test Passed\.$/ { all_passed += passed ? passed : 1 }
        /^Test Failed\.$/ || /^Unable to find / { all_passed += passed; all_failed += failed ? failed : 1 }
        END { printf "%d passed, %d failed\n", all_passed, all_failed }
    ' "$1/Testing/Temporary/LastTest.log"
}
