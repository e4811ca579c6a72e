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
