#!/bin/sh
# A library that needs more than the C run-time is refused: LIBRARY
set -eu
needed=$(readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
[ -n "$needed" ]
for library in $needed; do
  case $library in
    libc.so.* | libm.so.* | ld-linux*) ;;
    *) echo "needs $library"; exit 1 ;;
  esac
done
