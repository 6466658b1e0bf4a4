#!/bin/sh
# Compares the symbols that a library exports with a list: LIBRARY LIST
set -eu
list=$(mktemp)
trap 'rm "$list"' EXIT
sed 's/ DATA$//' "$2" >"$list"
nm --dynamic --defined-only --without-symbol-versions "$1" | awk '$3 ~ /^tivex_/ || $2 != "A" { print $3 }' |
  LC_ALL=C sort | diff "$list" -
