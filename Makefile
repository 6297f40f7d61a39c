# The documented way in. Everything is built through the presets of CMakePresets.json.

.DEFAULT_GOAL := help
.PHONY: help setup run test test-dev test-asan test-tsan lint lint-format format bench clean

# Where ccache is installed it serves every build, wherever the tree lies.
export CMAKE_CXX_COMPILER_LAUNCHER ?= $(shell command -v ccache)
export CCACHE_BASEDIR := $(CURDIR)
export CCACHE_NOHASHDIR := 1

help:
	@echo "make run [PHOTOS=folder]  install what is missing, build, find the albums of the photos (or of a sample)"
	@echo "make test                 the tests, then again under the sanitizers"
	@echo "make lint                 clang-format and clang-tidy as gates"
	@echo "make bench                the benchmarks' table"
	@echo "make format               put the sources into form"
	@echo "make clean                remove everything that was built"

setup:
	@tools/setup.sh

run: setup
	cmake --preset release
	cmake --build --preset release --target lumidex_cli
	tools/run.sh $(if $(PHOTOS),"$(PHOTOS)")

test: setup test-tsan test-asan test-dev

test-dev test-asan: test-%: setup
	cmake --preset $*
	cmake --build --preset $*
	ctest --preset $* -j 2 --no-tests=error

# Only what is about threads: the rest cannot tell the thread sanitizer anything.
test-tsan: setup
	cmake --preset tsan
	cmake --build --preset tsan --target concurrent_tests
	ctest --preset tsan -j 2 --no-tests=error

lint: setup lint-format
	cmake --preset dev
	cmake --build --preset dev
	tools/lint.sh tidy

lint-format: setup
	tools/lint.sh format

format: setup
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

bench: setup
	cmake --preset release
	cmake --build --preset release --target lumidex_bench
	build/release/bin/lumidex_bench

clean:
	rm -rf build
