# Kettlebrook Calendar: set-up, build, run and test.
#
#   make run    installs what is missing, builds, starts the desktop program
#   make test   installs what is missing, builds, runs the whole suite
#
# Other targets: deps, build, bench, fuzz, format, clean.

BUILD_DIR  ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS       ?= $(shell nproc)
CMAKE_ARGS ?=

.PHONY: all deps build run test bench fuzz format clean

all: build

deps:
	@bash tools/install-deps.sh
	@bash tools/fetch-fonts.sh "$(BUILD_DIR)/fonts"

$(BUILD_DIR)/build.ninja:
	cmake -S . -B "$(BUILD_DIR)" -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) $(CMAKE_ARGS)

build: $(BUILD_DIR)/build.ninja
	cmake --build "$(BUILD_DIR)" --parallel $(JOBS)

run: deps build
	@bash tools/run-desktop.sh "$(BUILD_DIR)/bin/kettlebrook-calendar"

test: deps build
	ctest --test-dir "$(BUILD_DIR)" --output-on-failure --parallel $(JOBS)

bench: build
	@bash bench/run-benchmarks.sh "$(BUILD_DIR)"

fuzz:
	@bash tools/run-fuzzers.sh

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf "$(BUILD_DIR)"
