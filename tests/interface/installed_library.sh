#!/bin/sh
# A host is built against the installed library as its users do: SOURCES BUILD
set -eu
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$2" --prefix "$prefix" > "$prefix/install.log"
pc=$(dirname "$(find "$prefix" -name tivex.pc)")
flags=$(PKG_CONFIG_PATH=$pc pkg-config --define-variable=prefix="$prefix" --cflags --libs tivex)
# shellcheck disable=SC2086
"${CC:-cc}" "$1/examples/payments.c" $flags -o "$prefix/payments"
LD_LIBRARY_PATH=$(dirname "$(find "$prefix" -name libtivex.so)") "$prefix/payments" |
  grep -q '^</Document>$'
