#!/bin/sh
# Every place that states the version states that of the header: SOURCES BUILD
set -eu
version=$(sed -n 's/^#define TIVEX_VERSION_STR "\(.*\)"$/\1/p' "$1/include/tivex.h")
number=$(sed -n 's/^#define TIVEX_VERSION_INT \([0-9]*\)$/\1/p' "$1/include/tivex.h")
major=${version%%.*}
minor=${version#*.}

expect() { # WHAT FOUND WANTED
  [ "$2" = "$3" ] || { echo "$1 states '$2', not '$3'"; exit 1; }
}
expect "TIVEX_VERSION_INT" "$number" $((major * 10000 + minor * 100))
expect "tivex.pc" "$(sed -n 's/^Version: //p' "$2/tivex.pc")" "$version"
expect "the library's file" "$(basename "$(readlink -f "$2/libtivex.so")")" "libtivex.so.$version"
expect "the shared object name" \
  "$(readelf -d "$2/libtivex.so" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')" "libtivex.so.$major"
expect "CHANGELOG.md" \
  "$(sed -n 's/^## \[\{0,1\}\([0-9.][0-9.]*\).*/\1/p' "$1/CHANGELOG.md" | head -n 1)" "$version"
expect "packaging/debian/changelog" \
  "$(sed -n '1s/^tivex (\(.*\)-[0-9]*) .*/\1/p' "$1/packaging/debian/changelog")" "$version"
expect "README.md" "$(grep -c "tivex $version" "$1/README.md" | sed 's/[1-9][0-9]*/yes/')" yes
