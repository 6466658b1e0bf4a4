#!/bin/sh
# Compiles a host in Free Pascal and runs it: FPC SOURCES BUILD PROGRAM [ARGUMENT...]
set -eu
fpc=$1 sources=$2 build=$3 program=$4
shift 4
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
"$fpc" -l- -v0ew -Fl"$build" -Fu"$sources/examples/hosts/pascal" -FE"$out" "$program"
LD_LIBRARY_PATH=$build "$out/$(basename "$program" .pas)" "$@"
