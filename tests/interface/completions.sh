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
tivex statement --format |csv hledger json table
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

# A terminal of its own, where a key tells the completed line. Lines as arguments.
by_zsh() {
  # shellcheck disable=SC2016 # the words are zsh's
  timeout 250 zsh -fc 'zmodload zsh/zpty
    zpty shell TERM=dumb zsh -fi
    zpty -w shell "stty -echo; PS1=; fpath=($PWD \$fpath); autoload -Uz compinit; compinit -D -u
      tell() { print -r -- \"<\$BUFFER>\"; BUFFER= }; zle -N tell; bindkey ^X tell; echo rea\"\"dy"
    zpty -r shell seen "*ready*"
    for line; do
      zpty -wn shell "$line"$'"'\\t\\x18'"'
      zpty -r shell seen "*<*>*"
      print -r -- "${${seen##*<}%%>*}"
    done' - "$@" | sed -E 's/[ =]$//; s/.* //'
}

tell() { # SHELL LINE EXPECTED FOUND
  [ "$3" = "$4" ] && return
  echo "$1: '$2' is completed by '$4', not by '$3'"
  failures=$((failures + 1))
}

compare() { # SHELL
  local line expected
  while IFS='|' read -r line expected; do
    tell "$1" "$line" "$expected" "$("by_$1" "$line" | sort | paste -sd ' ')"
  done < <(cases)
}

# All in one terminal; of several words zsh makes a menu.
compare_zsh() {
  local -a lines found
  local single='[|][^ ]+$' i
  mapfile -t lines < <(cases | grep -E "$single")
  mapfile -t found < <(by_zsh "${lines[@]%|*}")
  for i in "${!lines[@]}"; do
    tell zsh "${lines[i]%|*}" "${lines[i]#*|}" "${found[i]-}"
  done
}

# shellcheck disable=SC1091
. ./tivex.bash
compare bash
# An equals sign is a word of its own; what is no word of a command line is escaped.
COMP_WORDS=(tivex iban convert --delimiter "=" "") COMP_CWORD=5
_tivex
[ "${COMPREPLY[*]}" = ', \; auto tab \|' ] || { echo "bash: --delimiter="; failures=$((failures + 1)); }

if command -v fish >/dev/null; then compare fish; fi
if command -v zsh >/dev/null; then compare_zsh; fi
exit "$failures"
