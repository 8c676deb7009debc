# The commands of everyday work. Each installs what it needs, if it is missing.

JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
WORKBENCH ?= ON
DOCS := examples/Inventory/Documentation

.PHONY: run run-workbench help test sanitize fuzz kill hostile valgrind coverage bench screenshots package install format tidy clean

# Builds the program and compiles the documentation of the example projects.
run: release
	build/release/bin/tamrikon compile examples/Inventory/Inventory.vbg --template html --output $(DOCS)
	@echo
	@echo "The pages are in $(CURDIR)/$(DOCS). Open first:"
	@echo "$(CURDIR)/$(DOCS)/Group+.contents.html"

# Opens the example projects in the workbench.
run-workbench:
	@[ -n "$$DISPLAY$$WAYLAND_DISPLAY$$QT_QPA_PLATFORM" ] || \
	  { echo "There is no display to show the workbench on: DISPLAY and WAYLAND_DISPLAY are empty." >&2; exit 1; }
	@scripts/install_packages.sh workbench
	@$(MAKE) --no-print-directory help release
	build/release/bin/tamrikon-workbench examples/Inventory/Inventory.vbg

# The help file that the workbench opens when it is run from here.
help: data/tamrikon.chm

data/tamrikon.chm: $(wildcard docs/*.md docs/screenshots/*.png) scripts/build_help.py scripts/manual_pages.py
	@scripts/install_packages.sh help
	/usr/bin/python3 -B scripts/build_help.py $@

test:
	@scripts/install_packages.sh build workbench test
	cmake --preset dev
	cmake --build --preset dev -j $(JOBS)
	ctest --preset dev

# The tests once more, under AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize:
	@scripts/install_packages.sh build workbench test
	cmake --preset asan
	cmake --build --preset asan -j $(JOBS)
	ctest --preset asan

# Each fuzz target for so many seconds. What it finds is left in build/fuzz, with its log. (A template
# may use up all the calls that an expansion has, which takes its time here.)
SECONDS ?= 60
FUZZERS = template comment declaration source settings editor project markup
fuzz:
	@scripts/install_packages.sh build test fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS) --target $(FUZZERS:%=%_fuzz)
	@cd build/fuzz && for name in $(FUZZERS); do \
	  mkdir -p corpus/$$name; \
	  bin/$${name}_fuzz -max_total_time=$(SECONDS) -timeout=100 -rss_limit_mb=4096 \
	    -dict=$(CURDIR)/tests/fuzz/words.dict corpus/$$name $(CURDIR)/tests/fuzz/corpus/$$name \
	    > $$name.log 2>&1 || { tail -n 40 $$name.log; exit 1; }; \
	  echo "$$name: $$(tail -n 1 $$name.log)"; \
	done

# The program killed so often while it saves sources: none may be lost.
RUNS ?= 200
kill: release
	TAMRIKON=build/release/bin/tamrikon RUNS=$(RUNS) /usr/bin/python3 -B tests/faults/kill_test.py

# Time and memory for input that is made to hurt.
hostile: release
	/usr/bin/python3 -B bench/hostile_input.py build/release/bin/tamrikon

# The optimised program under valgrind, on a copy of the example projects.
valgrind: release
	@scripts/install_packages.sh valgrind
	scripts/run_valgrind.sh build/release/bin/tamrikon examples/Inventory

# Which lines and branches the tests reach, by folder; each file's are in build/coverage/report.
coverage:
	@scripts/install_packages.sh build workbench test coverage
	cmake --preset coverage
	cmake --build --preset coverage -j $(JOBS)
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage
	scripts/report_coverage.sh build/coverage

# Measures and writes docs/performance.md.
bench:
	@scripts/install_packages.sh bench
	@$(MAKE) --no-print-directory release
	/usr/bin/python3 -B bench/compile_bench.py build/release/bin/tamrikon

# The pictures in docs/screenshots, drawn without a screen.
screenshots:
	@scripts/install_packages.sh workbench test
	@$(MAKE) --no-print-directory release
	cmake --build --preset release --target make_screenshots
	build/release/bin/make_screenshots examples/Inventory docs/screenshots
	build/release/bin/tamrikon compile examples/Inventory/Inventory.vbg --template html --output $(DOCS) --quiet
	TAMRIKON=build/release/bin/tamrikon /usr/bin/python3 -B docs/screenshots/make_site_screenshots.py $(DOCS) docs/screenshots

# Debian packages in build/release/packages: that of the workbench too, unless WORKBENCH=OFF is given
# or Qt can't be installed.
package:
	@scripts/install_packages.sh package help
	@[ $(WORKBENCH) = OFF ] || scripts/install_packages.sh workbench || \
	  echo "Qt can't be installed: there will be a package for terminals alone."
	@$(MAKE) --no-print-directory release
	cpack --config build/release/CPackConfig.cmake -B build/release/packages

install: release
	cmake --install build/release --prefix $(PREFIX)

.PHONY: release
release:
	@scripts/install_packages.sh build
	cmake --preset release -DTAMRIKON_WORKBENCH=$(WORKBENCH)
	cmake --build --preset release -j $(JOBS)

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

tidy:
	cmake --preset dev
	git ls-files 'src/*.cpp' | xargs -n 4 -P $(JOBS) clang-tidy -p build/dev --quiet --extra-arg=-Wno-unknown-warning-option

clean:
	rm -rf build
