# Reduces a fuzz run's output (stdout and stderr together) to what a reader needs: the fuzzer's report lines, the
# engine's ensure and assertion reports, and sanitizer reports. The trace of calls and the session log are kept only
# as the last `context` lines, shown when the process reports a fault of its own (a crash, a sanitizer report, an
# ensure), since the fuzzer cannot print them then. Ends with "fuzz-calls: N", the last call it saw. Exits 3 when
# it saw such a fault.
#   awk -v context=40 -f output_filter.awk

BEGIN {
	if (context == "") context = 40
	kept = 0
	faults = 0
	last_call = "(before the first call)"
}

function truncated(line) {
	return length(line) > 300 ? substr(line, 1, 300) "...(" length(line) " bytes)" : line
}

function remember(line) {
	ring[kept % context] = truncated(line)
	kept++
}

function show_context(   first, index_) {
	print "fuzz: the last lines of the trace and log before it:"
	first = kept > context ? kept - context : 0
	for (index_ = first; index_ < kept; index_++) print "    " ring[index_ % context]
}

function fault(signature) {
	faults++
	print "fuzz-signature: " signature
}

/^fuzz #[0-9]+ / {
	last_call = $2
	calls = substr($2, 2) + 0
	remember($0)
	next
}

/^fuzz: / || /^error: / {
	print truncated($0)
	next
}

/Ensure condition failed: / {
	print "fuzz: ENSURE during call " last_call ": " truncated($0)
	if ((getline message) > 0) print "fuzz:   " truncated(message)
	signature = $0
	sub(/^.*Ensure condition failed: /, "", signature)
	fault("ensure " signature)
	show_context()
	remember($0)
	next
}

/Assertion failed: / || /Fatal error/ {
	print "fuzz: ASSERTION during call " last_call ": " truncated($0)
	fault("assertion " $0)
	in_report = 1
	next
}

/^==[0-9]+==ERROR: / || /: runtime error: / {
	if (!in_report) {
		print "fuzz: SANITIZER REPORT during call " last_call ":"
		in_report = 1
	}
}

/^SUMMARY: [A-Za-z]+Sanitizer/ {
	print $0
	fault($0)
	next
}

in_report {
	print truncated($0)
	next
}

{
	remember($0)
}

END {
	if (in_report) show_context()
	print "fuzz-calls: " calls + 0
	exit faults > 0 ? 3 : 0
}
