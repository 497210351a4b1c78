#!/usr/bin/env bash
# Runs one fuzz session: `vlmr run tests/fuzz/fuzz.lua` on a fresh copy of the sample project, in a temporary folder
# of its own, with the FUZZ_* settings of the environment. Prints the fuzzer's report, any ensure, assertion or
# sanitizer report with the calls before it, and one "fuzz-signature:" line per distinct fault. Exits non-zero when
# the fuzzer failed, the process crashed, hung (FUZZ_TIMEOUT seconds, 600 by default), hit an ensure, or left files
# outside the project copy.
#   tests/fuzz/run_fuzz.sh build/default/bin/vlmr
set -u -o pipefail

vlmr=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
timeout_seconds=${FUZZ_TIMEOUT:-600}

# The project copy is made in TMPDIR and the process works in it: whatever is left there after a clean exit was
# written outside the project.
scratch=$(mktemp -d "${TMPDIR:-/tmp}/vlmr-fuzz-XXXXXX")
trap 'rm -rf "$scratch"' EXIT

cd "$scratch"
TMPDIR="$scratch" ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:handle_abort=1}" \
	timeout --signal=ABRT --kill-after=30 "$timeout_seconds" "$vlmr" run --no-wait "$here/fuzz.lua" 2>&1 \
	| awk -v context="${FUZZ_HISTORY:-25}" -f "$here/output_filter.awk"
statuses=("${PIPESTATUS[@]}")
vlmr_status=${statuses[0]}
filter_status=${statuses[1]}

status=0
if [ "$vlmr_status" -eq 124 ] || [ "$vlmr_status" -eq 137 ]; then
	echo "fuzz: the run did not finish within $timeout_seconds s (FUZZ_TIMEOUT)"
	echo "fuzz-signature: timeout"
	status=1
elif [ "$vlmr_status" -ne 0 ] || [ "$filter_status" -ne 0 ]; then
	status=1
fi

if [ "$vlmr_status" -eq 0 ]; then
	leftovers=$(find "$scratch" -mindepth 1 -maxdepth 3 | sed "s|^$scratch/||" | head -20)
	if [ -n "$leftovers" ]; then
		echo "fuzz: files were written outside the project copy:"
		echo "$leftovers" | sed 's/^/    /'
		echo "fuzz-signature: files outside the project"
		status=1
	fi
fi
exit "$status"
