# The documented way in. Everything is built through the presets of CMakePresets.json.

.DEFAULT_GOAL := help
.PHONY: help translations setup setup-onnx setup-gallery gallery gallery-pictures run test test-sanitizers test-asan test-tsan lint \
  lint-format lint-tidy format bench fuzz clean \
  windows-toolchain test-windows windows-package soak

# Where ccache is installed it serves every build, wherever the tree lies.
export CMAKE_CXX_COMPILER_LAUNCHER ?= $(shell command -v ccache)
export CCACHE_BASEDIR := $(CURDIR)
export CCACHE_NOHASHDIR := 1

# How many tests run at a time.
JOBS ?= $(shell nproc)

help:
	@echo "make run [PHOTOS=folder]  install what is missing, build, find the albums of the photos (or of a sample)"
	@echo "make test                 the tests"
	@echo "make test-sanitizers      the tests again under the sanitizers of threads, addresses and undefined behaviour"
	@echo "make soak [ROUNDS=200]    the long tests: many files, many kills; takes an hour or more"
	@echo "make lint                 clang-format and clang-tidy as gates"
	@echo "make bench                the benchmarks' table"
	@echo "make fuzz [SECONDS=15]    each reader of files from elsewhere, fed with inputs made to break it"
	@echo "make gallery              the library's widgets in a window, with controls"
	@echo "make gallery-pictures     their pictures for the documentation"
	@echo "make format               put the sources into form"
	@echo "make windows-toolchain    what building for Windows needs, once per machine"
	@echo "make test-windows         the tests for 64-bit Windows, under Wine"
	@echo "make windows-package      a zip for 64-bit Windows, tried out under Wine"
	@echo "make translations         take new texts of the sources into translations/*.ts"
	@echo "make clean                remove everything that was built"

setup:
	@tools/setup.sh

setup-onnx: setup
	@tools/setup.sh onnx

setup-gallery: setup
	@tools/setup.sh gallery

run: setup
	cmake --preset release
	cmake --build --preset release --target lumidex_cli_program
	tools/run.sh $(if $(PHOTOS),"$(PHOTOS)")

test-sanitizers: test-tsan test-asan

# What is off by default is tested all the same, in one of the builds.
test soak: setup-onnx setup-gallery

test test-asan: setup
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET)
	ctest --preset $(PRESET) -j $(JOBS) --no-tests=error
	@tools/skipped.sh build/$(PRESET)
test: PRESET = test
test-asan: PRESET = asan

# With a short form of each in the other tests.
ROUNDS ?= 200
KILLED = build/test/bin/lumidex
soak: setup
	cmake --preset test
	cmake --build --preset test
	LUMIDEX_TEST_SOAK=1 ctest --preset test -j $(JOBS) --no-tests=error --timeout 7200 -R 'host_(import|history)'
	tests/cli/kill_test.py --lumidex $(KILLED) --rounds $(ROUNDS) --photos 60
	tests/cli/import_kill_test.py --lumidex $(KILLED) --rounds $(ROUNDS) --photos 250
	tests/cli/similar_kill_test.py --lumidex $(KILLED) --rounds $(ROUNDS)

# Only what is about threads: the rest cannot tell the thread sanitizer anything.
test-tsan: setup
	cmake --preset tsan
	cmake --build --preset tsan --target concurrent_tests
	ctest --preset tsan -j $(JOBS) --no-tests=error
	@tools/skipped.sh build/tsan

lint: lint-format lint-tidy

lint-format: setup
	tools/lint.sh format

# Nothing is compiled for it.
lint-tidy: setup-onnx
	cmake --preset lint
	tools/lint.sh tidy

translations: setup
	@tools/translations.py

format: setup
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

bench: setup
	@tools/setup.sh bench
	cmake --preset release
	cmake --build --preset release --target lumidex_bench
	build/release/bin/lumidex_bench

SECONDS ?= 15
fuzz: setup
	@tools/setup.sh fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz
	tools/fuzz.sh $(SECONDS)

gallery gallery-pictures: setup-gallery
	cmake --preset release
	cmake --build --preset release --target lumidex_gallery
	$(if $(filter gallery,$@),build/release/bin/lumidex_gallery,xvfb-run -a build/release/bin/lumidex_gallery --pictures docs/pictures)

windows-toolchain:
	@tools/windows/toolchain.sh

# Sets LUMIDEX_WINDOWS_TOOLCHAIN for the commands behind it. What was configured with another toolchain starts anew.
WITH_TOOLCHAIN = export LUMIDEX_WINDOWS_TOOLCHAIN="$$(tools/windows/toolchain.sh --path)" && \
  [ -n "$$LUMIDEX_WINDOWS_TOOLCHAIN" ] || { echo "the Windows toolchain is missing: make windows-toolchain" >&2; exit 1; }; \
  fresh() { grep -qsF "$$LUMIDEX_WINDOWS_TOOLCHAIN" "build/$$1/CMakeCache.txt" || echo --fresh; };

test-windows: setup
	@tools/setup.sh windows
	$(WITH_TOOLCHAIN) cmake --preset windows $$(fresh windows) && cmake --build --preset windows
	tools/windows/with-wine.sh ctest --preset windows -j $(JOBS) --no-tests=error
	@tools/skipped.sh build/windows

windows-package: setup
	@tools/setup.sh windows
	$(WITH_TOOLCHAIN) cmake --preset windows-release $$(fresh windows-release) && cmake --build --preset windows-release
	tools/windows/package.sh

clean:
	rm -rf build
