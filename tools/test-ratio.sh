#!/usr/bin/env bash
# Prints lines of tests, lines of code and their ratio, without blank and comment lines.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

count() { xargs -r cat | grep -vcE '^[[:space:]]*($|//|/\*|\*)'; }
tests=$(git ls-files 'tests/*.cpp' 'tests/*.h' | count)
code=$(git ls-files '*.cpp' '*.h' | grep -vE '^(tests|bench|fuzz)/' | count)
awk -v t="$tests" -v c="$code" \
    'BEGIN { printf "Tests %d lines, code %d lines, ratio %.2f (goal 0.25 to 0.33)\n", t, c, t / c }'
