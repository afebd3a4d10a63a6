#!/usr/bin/env bash
# The register under load: one account of 32767 movements.
#   (a) a whole marendola-script process: start, opening of that account as the start account,
#       print of the balances; mean of 20 runs (target below 25 ms), timed by bash's own clock:
#       a `date` process before and after each run would add some 7 ms to it;
#   (b) one new movement in-process, with the whole rewrite of .Ord; mean of 50 (below 5 ms);
#   (c) the staffa of a year of 1000 movements in-process, from `via` to the last row; mean of
#       50 (below 5 ms);
#   (d) `Interessi` on the same year, to the last row of the competences; mean of 50 (below
#       10 ms).
#   (e) the CPU time (user + sys) of (a) against `ledger -f J bal` on the same movements written
#       as a journal: runs of the two in turn, medians, and their ratio. CPU time rather than
#       the clock, and the ratio rather than the times alone: the machines are shared;
#   (f) with Qt: from the start of the opening of that account in the program to its entry
#       screen shown with the 32767 lines, on the offscreen platform; median of 5 (below 100 ms).
# Usage: tools/bench.sh BUILD_DIR
set -euo pipefail

build=$(cd "${1:?usage: tools/bench.sh BUILD_DIR}" && pwd)
driver=$build/tools/marendola-script
bench=$build/tools/bench_registro
elenco=$build/ui/bench_elenco
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# A first start makes the program directory; then the accounts are written straight to disk.
printf 'program prog\nstart\n' > primo.script
"$driver" primo.script > /dev/null
"$bench" prepara "$work/prog"

cat > apri.script <<'SCRIPT'
program prog
start
print MDIForm1.Codice
print MDIForm1.Saldi(0)
print MDIForm1.Saldi(1)
print MDIForm1.Saldi(3)
print MDIForm1.Saldi(4)
print MDIForm1.Saldi(5)
print Form9.NrOper
SCRIPT

echo "Conto di 32767 movimenti, aperto all'avvio:"
"$driver" apri.script | sed 's/^/  /'

runs=20
total=0
for ((i = 0; i < runs; i++)); do
    # Microseconds: EPOCHREALTIME without its separator, which follows the locale.
    start=${EPOCHREALTIME/[.,]/}
    "$driver" apri.script > /dev/null
    end=${EPOCHREALTIME/[.,]/}
    total=$((total + end - start))
done
mean_us=$((total / runs))
printf '(a) avvio + apertura + saldi, processo intero: %d.%03d ms (media di %d)\n' \
    $((mean_us / 1000)) $((mean_us % 1000)) "$runs"

printf '(b) un movimento nuovo con riscrittura di .Ord: %s ms (media di 50)\n' \
    "$("$bench" aggiungi "$work/prog")"

printf '(c) staffa di un anno di 1000 movimenti: %s ms (media di 50)\n' \
    "$("$bench" staffa "$work/prog")"

printf '(d) interessi di un anno di 1000 movimenti: %s ms (media di 50)\n' \
    "$("$bench" interessi "$work/prog")"

# CPU milliseconds (user + sys) of one run of a command, its output dropped.
cpu_ms() {
    local TIMEFORMAT='%3U %3S' tempi
    tempi=$({ time "$@" > /dev/null; } 2>&1)
    awk '{ printf "%d\n", ($1 + $2) * 1000 + 0.5 }' <<< "$tempi"
}

mediana() {
    sort -n | awk '{ v[NR] = $1 }
                   END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}

"$bench" diario "$work/diario.ledger"
giri=9
: > prodotto.ms
: > ledger.ms
for ((i = 0; i < giri; i++)); do
    cpu_ms "$driver" apri.script >> prodotto.ms
    cpu_ms ledger -f "$work/diario.ledger" bal >> ledger.ms
done
prodotto=$(mediana < prodotto.ms)
riferimento=$(mediana < ledger.ms)
printf '(e) tempo di CPU, mediane di %d giri alterni: prodotto %s ms, ledger bal %s ms\n' \
    "$giri" "$prodotto" "$riferimento"
awk -v p="$prodotto" -v l="$riferimento" \
    'BEGIN { printf "    ledger bal / prodotto: %.1f volte\n", (p > 0 ? l / p : 0) }'

if [ -x "$elenco" ]; then
    export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/runtime"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    for ((i = 0; i < 5; i++)); do "$elenco" "$work/prog"; done > elenco.ms
    printf '(f) Qt, apertura del conto fino alla maschera con le righe: %s ms (mediana di 5)\n' \
        "$(mediana < elenco.ms)"
fi
