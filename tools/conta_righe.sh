#!/bin/bash
# Non-blank lines of the tests against those of the code: .cpp and .h files only, then every
# file (scripts, expected outputs, forms and build files included).
cd "$(dirname "$0")/.." || exit 1
CODICE="store screen ledger refdata cheques interest closing reports shell ui tools"
righe() { find "$@" -type f "${filtro[@]}" 2>/dev/null -print0 | xargs -0 -r cat | grep -cv '^\s*$'; }
for misura in "cpp h" "tutti"; do
    if [ "$misura" = tutti ]; then filtro=(); else filtro=( \( -name '*.cpp' -o -name '*.h' \) ); fi
    codice=$(righe $CODICE)
    prove=$(righe tests)
    echo "$misura: code $codice, tests $prove ($((100 * prove / codice)) %)"
done
