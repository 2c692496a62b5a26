# The project's commands. Every target first makes sure the Debian packages are installed.
BUILD := build
SANITIZE_BUILD := build-sanitize
FUZZ_BUILD := build-fuzz
JOBS := $(shell nproc)
FUZZ_SECONDS ?= 60

.PHONY: setup build run test test-sanitize bench fuzz examples clean

setup:
	@scripts/setup.sh

build: setup
	@cmake -S . -B $(BUILD) -DNETRIX_BENCH=ON >/dev/null
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/app/netrix examples/amplifier.s2p

test: build
	ctest --test-dir $(BUILD) --output-on-failure --no-tests=error -j $(JOBS)

test-sanitize: setup
	@cmake -S . -B $(SANITIZE_BUILD) -DCMAKE_BUILD_TYPE=Debug -DNETRIX_SANITIZE=ON -DNETRIX_BENCH=OFF >/dev/null
	@cmake --build $(SANITIZE_BUILD) -j $(JOBS)
	ctest --test-dir $(SANITIZE_BUILD) --output-on-failure --no-tests=error -j $(JOBS)

bench: build
	@for b in $(BUILD)/bench/bench_*; do echo "== $$b"; $$b --benchmark_repetitions=15 --benchmark_report_aggregates_only=true || exit 1; done
	@scripts/bench_commands.sh $(BUILD)

fuzz: setup
	@CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNETRIX_FUZZ=ON \
	    -DNETRIX_TESTS=OFF -DNETRIX_BENCH=OFF >/dev/null
	@cmake --build $(FUZZ_BUILD) -j $(JOBS)
	@for f in $(FUZZ_BUILD)/fuzz/fuzz_*; do echo "== $$f"; mkdir -p $(FUZZ_BUILD)/corpus/$$(basename $$f); \
	    $$f -max_total_time=$(FUZZ_SECONDS) -print_final_stats=1 $(FUZZ_BUILD)/corpus/$$(basename $$f) fuzz/seeds || exit 1; done

examples: build
	$(BUILD)/tools/make_examples examples

clean:
	rm -rf $(BUILD) $(SANITIZE_BUILD) $(FUZZ_BUILD)
