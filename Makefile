# Everyday commands; each one sets the machine up first (scripts/bootstrap.sh is quick when all is present).
JOBS ?= $(shell nproc)
EXAMPLE ?= examples/first_script.lua

.PHONY: all bootstrap build test test-versions example bench fuzz clean

all: build

bootstrap:
	@scripts/bootstrap.sh

build: bootstrap
	@cmake --preset default >/dev/null
	@cmake --build --preset default -j $(JOBS)

# Every test (unit, Lua scenarios, the module's automation tests) under ASan+UBSan, for UE 5.7.
test: build
	@ctest --preset default -j $(JOBS)

# The same for the 5.5, 5.6 and 5.8 builds, so that every version gate is exercised both ways.
test-versions: bootstrap
	@for preset in ue55 ue56 ue58; do \
		cmake --preset $$preset >/dev/null && cmake --build --preset $$preset -j $(JOBS) && \
		ctest --preset $$preset -j $(JOBS) || exit 1; \
	done

# Runs an example script on a fresh copy of the sample project.
example: build
	@build/default/bin/vlmr run $(EXAMPLE)

# The Release build's benchmarks (about a minute and a half); the run ends with one table of per-call CPU costs, each
# against its floor measured in the same run, with each call's fitted complexity.
bench: bootstrap
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS)
	@for b in build/release/bin/bench_*; do "$$b" || exit 1; done

# The fuzzer, long, under ASan+UBSan: FUZZ_DURATION seconds (600) of seeds from FUZZ_FIRST_SEED, FUZZ_CALLS calls
# each, FUZZ_JOBS at a time; prints the total number of calls and every distinct fault (tests/fuzz/campaign.sh).
fuzz: build
	@tests/fuzz/campaign.sh build/default/bin/vlmr

clean:
	@rm -rf build/default build/ue55 build/ue56 build/ue58 build/release
