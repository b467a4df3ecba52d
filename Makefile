# Two commands do all the set-up: `make run` and `make test`.
BUILD ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)
BIN = $(BUILD)/bin

.PHONY: deps configure build run test bench fuzz clean

deps:
	@scripts/install-deps

# ccache keeps compiled objects across clean builds and work trees.
$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) \
	  $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

configure: $(BUILD)/build.ninja

build: deps configure
	cmake --build $(BUILD) -j$(JOBS)

# Builds only what it runs: the suite, its libraries and the account-set tool. With a display the
# suite opens on the demo account set for a person; without one the demo script drives it on the
# offscreen platform, on a fresh demo account set out/demo.db (the script saves edits), with its
# settings under out/ (a user's saved view settings cannot change what it drives), and writes
# screenshots under out/.
run: deps configure
	cmake --build $(BUILD) -j$(JOBS) --target lumo-suite lumo-acct
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(BIN)/lumo-suite --demo; \
	else \
	  mkdir -p out && rm -rf out/demo.db out/config && \
	  XDG_CONFIG_HOME=$(CURDIR)/out/config $(BIN)/lumo-suite --demo --account-set out/demo.db --script demo/demo.js \
	    && echo "screenshots in out/"; \
	fi

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS)

bench: build
	@for b in $(BIN)/bench_*; do echo "== $$b"; $$b; done

# libFuzzer over the parsers of outside text, under ASan and UBSan, FUZZ_SECONDS per harness,
# from the seed corpus in fuzz/corpus (new finds go to $(FUZZ_BUILD)/corpus, crashes fail).
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 60
FUZZERS = script filter propstring ini

fuzz: deps
	CXX=clang++ cmake -S fuzz -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
	cmake --build $(FUZZ_BUILD) -j$(JOBS)
	@for f in $(FUZZERS); do \
	  echo "== fuzz_$$f for $(FUZZ_SECONDS) s"; \
	  mkdir -p $(FUZZ_BUILD)/corpus/$$f $(FUZZ_BUILD)/crashes && \
	  $(FUZZ_BUILD)/bin/fuzz_$$f -max_total_time=$(FUZZ_SECONDS) -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
	    -dict=fuzz/sql.dict -artifact_prefix=$(FUZZ_BUILD)/crashes/ -print_final_stats=1 \
	    $(FUZZ_BUILD)/corpus/$$f fuzz/corpus/$$f > $(FUZZ_BUILD)/fuzz_$$f.log 2>&1; \
	  rc=$$?; if [ $$rc -eq 0 ]; then grep -E "^Done|new_units_added|peak_rss" $(FUZZ_BUILD)/fuzz_$$f.log; \
	  else tail -n 40 $(FUZZ_BUILD)/fuzz_$$f.log; exit 1; fi; \
	done

clean:
	rm -rf $(BUILD) $(FUZZ_BUILD) out
