# The one place to start: `make demo` shows the viewer, `make test` builds and runs every test.
SAMPLE ?= viewer/samples/feature_film.otio
PICTURE ?= build/demo.png

RELEASE := build/release
VIEWER := $(RELEASE)/bin/murtimeline-viewer
BENCH := $(RELEASE)/bin/mur_bench
WINDOWS := build/win64 build/win32

.DEFAULT_GOAL := help
.PHONY: help demo picture test test-com test-lazarus viewer com installer bench bench-com format check coverage \
  packages windows-packages

help: ## this list
	@awk -F ': .*## ' '/^[a-z-]+: .*## / { printf "  make %-12s %s\n", $$1, $$2 }' Makefile

demo: viewer ## show SAMPLE in the viewer; without a display, write the picture PICTURE
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(VIEWER) $(SAMPLE); \
	else \
	  QT_QPA_PLATFORM=offscreen $(VIEWER) $(SAMPLE) --png $(PICTURE) && echo $(PICTURE); \
	fi

picture: packages ## draw the viewer's window for the README (docs/viewer.png)
	@cmake --preset release
	@cmake --build $(RELEASE) --target viewer_picture
	@$(RELEASE)/bin/viewer_picture viewer/samples/feature_film.otio docs/viewer.png && echo docs/viewer.png

test: packages windows-packages ## build and run all tests, plain, under the sanitizers and in Wine
	@tools/run_tests

viewer: packages ## build the viewer
	@cmake --preset release
	@cmake --build $(RELEASE) --target murtimeline-viewer

com: windows-packages ## build the COM server for Windows: build/win64/bin and build/win32/bin
	@for folder in $(WINDOWS); do \
	  cmake --preset $${folder#build/} && cmake --build $$folder --target murtimeline-ocx mur_manifest || exit 1; \
	done
	@ls $(WINDOWS:=/bin/MURTimeline.ocx)

test-com: windows-packages ## build and run the tests of the COM server alone
	@tools/run_tests win64 win32

test-lazarus: com ## show the control in the container of Lazarus, from its sources; not part of `make test`
	@[ -n "$$MUR_LAZARUS_SOURCES" ] || tools/install-packages lazarus
	@examples/lazarus_container/test build/win64/bin/MURTimeline.ocx build/lazarus

installer: com ## build/MURTimeline-VERSION-setup.exe
	@tools/make_installer

bench-com: windows-packages ## what calls through COM cost, beside the same calls in C++
	@cmake --preset win64 -D MUR_BUILD_BENCH=ON
	@cmake --build build/win64 --target mur_bench_com
	@tools/run_in_wine build/win64/bin/mur_bench_com.exe

bench: packages ## build and run the benchmarks
	@cmake --preset release
	@cmake --build $(RELEASE) --target mur_bench
	@$(BENCH)

format: ## lay out all sources with clang-format
	@tools/install-packages format
	@tools/list_sources | xargs clang-format -i

check: packages ## what a machine can say about the sources without running them
	@tools/install-packages format tidy
	@tools/check_layers
	@tools/check_file_sizes
	@tools/list_sources | xargs clang-format --dry-run --Werror
	@cmake --preset core
	@tools/tidy
	@cmake --build build/core --target all_verify_interface_header_sets

coverage: packages ## line and branch coverage of the core
	@tools/install-packages coverage
	@tools/coverage

packages:
	@tools/install-packages

windows-packages:
	@tools/install-packages com installer
