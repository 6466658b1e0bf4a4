#!/bin/sh
# Hosts are built against the installed library as its users do: SOURCES BUILD
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
host=$1/examples/payments.c
consumer=$1/tests/interface/consumer

runs() { # HOST
  "$@" | grep -q '^</Document>$'
}

# Everything must be found where it stands, not where it was put.
cmake --install "$2" --prefix "$work/first" >"$work/log"
mv "$work/first" "$work/moved here"
prefix="$work/moved here"
library=$(dirname "$(find "$prefix" -name libtivex.so)")
[ ! -e "$2/tivex" ] || "$prefix/bin/tivex" --version >"$work/log"

for kind in '' -static; do
  flags=$(PKG_CONFIG_PATH=$library/pkgconfig pkg-config ${kind:+--static} --cflags --libs tivex)
  eval "${CC:-cc} $kind '$host' $flags -o '$work/payments'"
  LD_LIBRARY_PATH=$library runs "$work/payments"
done

cmake -S "$consumer" -B "$work/installed" -DHOST="$host" -DCMAKE_PREFIX_PATH="$prefix" >"$work/log"
cmake --build "$work/installed" >"$work/log"
runs "$work/installed/host_of_tivex"
rm "$library"/libtivex.so*
runs "$work/installed/host_of_tivex_static"

# As a part of another project it is the library only, and nothing to install.
cmake -S "$consumer" -B "$work/part" -DHOST="$host" -DSOURCES="$1" >"$work/log"
cmake --build "$work/part" --target help | grep -E '^\.\.\. tivex' | LC_ALL=C sort >"$work/targets"
printf '... %s\n' tivex tivex_objects tivex_static | diff - "$work/targets"
cmake --install "$work/part" --prefix "$work/nothing" >"$work/log"
[ ! -e "$work/nothing" ]
