#!/bin/bash
# Non-blank lines of the tests against those of the code: every tracked file under tests/
# (C++, scripts, expected outputs, forms, build files) against the tracked .cpp and .h files
# outside it.
cd "$(dirname "$0")/.." || exit 1
righe() { xargs -0 -r cat | grep -cv '^\s*$'; }
codice=$(git ls-files -z -- '*.cpp' '*.h' | tr '\0' '\n' | grep -v '^tests/' | tr '\n' '\0' | righe)
prove=$(git ls-files -z -- 'tests/*' | righe)
echo "code $codice, tests $prove ($((100 * prove / codice)) %)"
