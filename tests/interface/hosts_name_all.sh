#!/bin/sh
# The declarations for other languages name every exported symbol, and every constant of
# the header with its value: SOURCES
set -eu
wanted=$(mktemp)
trap 'rm "$wanted"' EXIT

# The header's version has a name of its own there: not all languages tell capitals from
# small letters.
{
  sed 's/ DATA$//' "$1/src/exported_symbols.txt"
  sed -n 's/^#define \(TIVEX_[A-Z0-9_]*\) (*\([-0-9"][-.0-9x"]*\).*/\1 \2/p' "$1/include/tivex.h" |
    sed 's/^TIVEX_VERSION/TIVEX_HEADER_VERSION/'
} >"$wanted"

faults=0
for host in pascal/tivex.pas tivex.bas Tivex.cs; do
  # Texts and hexadecimal numbers as C writes them.
  text=$(sed "s/'/\"/g; s/[\$]\([0-9]\)/0x\1/g; s/&H/0x/g" "$1/examples/hosts/$host" | tr -d '\r')
  while read -r name value; do
    if [ -n "$value" ]; then
      pattern="(^|[^A-Z_])$name( As [A-Z][a-z]*)? = $value(;| |\$)"
    else
      pattern="([Ff]unction|procedure|Sub|extern [A-Za-z]*) $name($|[^A-Za-z0-9_])|\"$name\""
    fi
    printf '%s\n' "$text" | grep -Eq -e "$pattern" ||
      { echo "$host lacks $name $value"; faults=1; }
  done <"$wanted"
done
exit $faults
