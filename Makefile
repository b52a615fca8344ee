# SPDX-License-Identifier: LGPL-2.1-or-later
# Entry points: `make demo` and `make test` set up a fresh Debian 12 machine
# (installing what is missing), build and run. See README.md.

BUILD      ?= build
SAN_BUILD  ?= build-sanitize
BENCH_BUILD?= build-bench
FUZZ_BUILD ?= build-fuzz
DEMO_OUT   ?= demo-output
JOBS       ?= $(shell nproc)
FUZZ_SECONDS ?= 60
CMAKE_FLAGS ?=
LAUNCHER   := $(shell command -v ccache >/dev/null 2>&1 && echo -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
# Lets ccache share results between checkouts in different folders.
export CCACHE_BASEDIR := $(CURDIR)
export CCACHE_NOHASHDIR := 1

.PHONY: deps build demo test sanitize bench fuzz docs clean

deps:
	@tools/install-deps.sh base

$(BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(LAUNCHER) $(CMAKE_FLAGS)

build: deps $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

demo: build
	$(BUILD)/examples/demo/utils-demo --output $(DEMO_OUT)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

sanitize: deps
	cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DUTILS_SANITIZE=ON -DUTILS_BUILD_EXAMPLES=OFF $(LAUNCHER) $(CMAKE_FLAGS)
	cmake --build $(SAN_BUILD) -j $(JOBS)
	cd $(SAN_BUILD) && ASAN_OPTIONS=detect_leaks=0 \
	    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ctest --output-on-failure -j $(JOBS)

bench:
	@tools/install-deps.sh bench
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF -DUTILS_BUILD_EXAMPLES=OFF \
	    -DUTILS_BUILD_BENCHMARKS=ON $(LAUNCHER) $(CMAKE_FLAGS)
	cmake --build $(BENCH_BUILD) -j $(JOBS)
	tools/run-benchmarks.sh $(BENCH_BUILD)

fuzz:
	@tools/install-deps.sh fuzz
	CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF \
	    -DUTILS_BUILD_EXAMPLES=OFF -DUTILS_BUILD_FUZZERS=ON -DUTILS_SANITIZE=ON $(LAUNCHER) $(CMAKE_FLAGS)
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	tools/run-fuzzers.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

docs: $(BUILD)/CMakeCache.txt
	@tools/install-deps.sh docs
	cmake -S . -B $(BUILD)
	cmake --build $(BUILD) --target docs

clean:
	rm -rf $(BUILD) $(SAN_BUILD) $(BENCH_BUILD) $(FUZZ_BUILD) $(DEMO_OUT)
