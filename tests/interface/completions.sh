#!/usr/bin/env bash
# Completes command lines in each shell that is there: completions.sh FOLDER, where
# FOLDER holds the shells' files.
# shellcheck disable=SC2317 # functions are called by names that are put together
set -euo pipefail
cd "$1"
failures=0

# A line up to the cursor, and the words that complete it.
cases() {
  cat <<'EOF'
tivex st|statement
tivex iban c|check convert
tivex iban check |
tivex bank |AT CH DE LI
tivex bank --j|--json
tivex statement --format |csv json table
tivex direct-debit --type C|COR1 CORE
tivex direct-debit --name bank --type C|COR1 CORE
tivex credit-transfer --rulebook N|NL-6
tivex statement --encoding w|windows-1252
tivex statement tivex.b|tivex.bash
tivex statement -x --from |
tivex iban convert -o tivex.b|tivex.bash
EOF
}

by_bash() { # LINE
  local -a words
  IFS=' ' read -ra words <<<"$1"
  [[ $1 != *' ' ]] || words+=("")
  COMP_WORDS=("${words[@]}") COMP_CWORD=$((${#words[@]} - 1)) COMPREPLY=()
  _tivex
  printf '%s\n' "${COMPREPLY[@]}"
}

by_fish() { # LINE
  # shellcheck disable=SC2016 # the words are fish's
  fish --no-config -c 'source tivex.fish; complete -C $argv[1]' "$1" | cut -f 1
}

# A terminal of its own, where a key tells the completed line.
by_zsh() { # LINE
  # shellcheck disable=SC2016 # the words are zsh's
  zsh -fc 'zmodload zsh/zpty
    zpty shell TERM=dumb zsh -fi
    zpty -w shell "stty -echo; PS1=; fpath=($PWD \$fpath); autoload -Uz compinit; compinit -D -u
      tell() { print -r -- \"<\$BUFFER>\" }; zle -N tell; bindkey ^X tell; echo rea\"\"dy"
    zpty -r shell seen "*ready*"
    zpty -wn shell "$1"$'"'\\t\\x18'"'
    zpty -r shell seen "*<*>*"
    print -r -- "${${seen##*<}%%>*}"' - "$1" | sed -E 's/[ =]$//; s/.* //'
}

compare() { # SHELL
  local line expected found
  while IFS='|' read -r line expected; do
    # Of several words zsh makes a menu.
    [[ $1 == zsh && ! $expected =~ ^[^\ ]+$ ]] && continue
    found=$("by_$1" "$line" | sort | paste -sd ' ')
    [ "$found" = "$expected" ] && continue
    echo "$1: '$line' is completed by '$found', not by '$expected'"
    failures=$((failures + 1))
  done < <(cases)
}

# shellcheck disable=SC1091
. ./tivex.bash
compare bash
# An equals sign is a word of its own; what is no word of a command line is escaped.
COMP_WORDS=(tivex iban convert --delimiter "=" "") COMP_CWORD=5
_tivex
[ "${COMPREPLY[*]}" = ', \; tab' ] || { echo "bash: --delimiter="; failures=$((failures + 1)); }

for each in fish zsh; do
  if command -v "$each" >/dev/null; then compare "$each"; fi
done
exit "$failures"
