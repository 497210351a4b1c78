#!/usr/bin/env bash
# The fuzzer, long: runs seed after seed (FUZZ_FIRST_SEED on, 1000 by default) for FUZZ_DURATION seconds (600 by
# default), FUZZ_CALLS calls each (50000 by default), cycling through the plain editor, VLMR_GC_STRESS=1, and Lua's
# collector running on its own, FUZZ_JOBS runs at a time (1 by default). The output of every failing run is kept in
# FUZZ_OUT (build/fuzz by default). Ends with the total number of calls and each distinct fault with the runs that
# hit it; exits 1 when there was any.
#   tests/fuzz/campaign.sh build/default/bin/vlmr
set -u

vlmr=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
duration=${FUZZ_DURATION:-600}
seed=${FUZZ_FIRST_SEED:-1000}
calls=${FUZZ_CALLS:-50000}
jobs=${FUZZ_JOBS:-1}
out=$(realpath -m "${FUZZ_OUT:-build/fuzz}")
mkdir -p "$out"
rm -f "$out"/run-*.txt

modes=("VLMR_GC_STRESS=0" "VLMR_GC_STRESS=1" "VLMR_GC_STRESS=0 FUZZ_LUA_GC=auto" "VLMR_GC_STRESS=1 FUZZ_LUA_GC=auto")
started=$(date +%s)

remaining_seconds() {
	echo $((duration - ($(date +%s) - started)))
}

# One run; its output stays in $out/run-SEED.txt, its first line says how it was made.
run_seed() {
	local run_seed=$1 mode=$2 seconds=$3
	local file="$out/run-$run_seed.txt"
	echo "# FUZZ_SEED=$run_seed FUZZ_CALLS=$calls $mode" > "$file"
	env $mode FUZZ_SEED="$run_seed" FUZZ_CALLS="$calls" FUZZ_SECONDS="$seconds" FUZZ_TRACE=1 \
		FUZZ_TIMEOUT=$((seconds + 120)) bash "$here/run_fuzz.sh" "$vlmr" >> "$file" 2>&1
	echo "# exit $?" >> "$file"
}

runs=0
while [ "$(remaining_seconds)" -gt 5 ]; do
	while [ "$(jobs -rp | wc -l)" -ge "$jobs" ]; do
		wait -n
	done
	seconds=$(remaining_seconds)
	[ "$seconds" -gt 300 ] && seconds=300
	mode=${modes[$((runs % ${#modes[@]}))]}
	echo "fuzz: seed $seed ($mode)"
	run_seed "$seed" "$mode" "$seconds" &
	runs=$((runs + 1))
	seed=$((seed + 1))
done
wait

total_calls=$(cat "$out"/run-*.txt | sed -n 's/^fuzz-calls: //p' | awk '{ sum += $1 } END { print sum + 0 }')
elapsed=$(( $(date +%s) - started ))
echo "fuzz: $runs runs, $total_calls calls in $elapsed s ($((total_calls / (elapsed > 0 ? elapsed : 1))) calls/s)"

# Each distinct fault: sanitizer summaries, ensures, timeouts and the fuzzer's own failures, with the runs that saw it.
faults=$(grep -H -e '^fuzz-signature: ' -e '^fuzz: failure [0-9]*: ' "$out"/run-*.txt \
	| sed -E 's/^([^:]*):fuzz-signature: /\1\t/; s/^([^:]*):fuzz: failure [0-9]+: first at call [0-9]+, [0-9]+ times: /\1\t/' \
	| awk -F '\t' '{ runs[$2] = runs[$2] " " $1; count[$2]++ } END { for (f in count) printf "%5d runs: %s\n          e.g.%s\n", count[f], f, substr(runs[f], 1, 200) }')
for file in "$out"/run-*.txt; do
	grep -q '^# exit 0$' "$file" && rm -f "$file"
done
if [ -n "$faults" ]; then
	echo "fuzz: distinct faults (outputs of the failing runs are in $out):"
	echo "$faults"
	exit 1
fi
echo "fuzz: no faults"
