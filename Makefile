# Two commands open the README: `make run` and `make test`. Both install what is missing first.
SHELL := /bin/bash
JOBS ?= $(shell nproc)
BUILD := build
ASAN := build/asan
FUZZ := build/fuzz
DEBS := g++ cmake make libgtest-dev libgmock-dev qt6-base-dev qt6-tools-dev libqt6uitools6 \
        qt6-qpa-plugins libgl1-mesa-dev fonts-liberation xvfb xauth imagemagick \
        poppler-utils clang libclang-rt-14-dev
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
# A compiler cache, where the developer has one, makes rebuilds of other checkouts cheap.
LAUNCHER := $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

.PHONY: deps build run test fuzz-build fuzz bench clean screenshot

deps:
	@missing=$$(for p in $(DEBS); do dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null \
	    | grep -q 'install ok installed' || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	    echo "Installo: $$missing"; \
	    $(SUDO) apt-get update -qq && \
	    DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release $(LAUNCHER) >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/ui/marendola

# The unit tests run twice: once in the release build with everything else, and once more under
# AddressSanitizer and UndefinedBehaviorSanitizer (logic only, no Qt).
test: build fuzz-build
	cmake -S . -B $(ASAN) $(LAUNCHER) -DCMAKE_BUILD_TYPE=Debug -DMARENDOLA_SANITIZE=ON -DMARENDOLA_QT=OFF >/dev/null
	cmake --build $(ASAN) -j $(JOBS)
	cd $(ASAN) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	cd $(FUZZ) && ctest -R "^fuzz[.]" --output-on-failure -j $(JOBS)

# The fuzz targets, built with clang under the sanitizers. `make test` runs each for a fixed
# number of inputs; `make fuzz FUZZ_SECONDS=3600` runs each that long, keeping what it finds in
# build/fuzz/corpus.
FUZZ_SECONDS ?= 600
FUZZ_TARGETS := avvio conto
fuzz-build: deps
	cmake -S . -B $(FUZZ) $(LAUNCHER) -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DMARENDOLA_FUZZ=ON -DMARENDOLA_QT=OFF >/dev/null
	cmake --build $(FUZZ) -j $(JOBS) --target $(addprefix fuzz_,$(FUZZ_TARGETS))

fuzz: fuzz-build
	for t in $(FUZZ_TARGETS); do mkdir -p $(FUZZ)/corpus/$$t && \
	    $(FUZZ)/tests/fuzz/fuzz_$$t -max_total_time=$(FUZZ_SECONDS) -timeout=10 \
	        $(FUZZ)/corpus/$$t tests/fuzz/semi/$$t || exit 1; done

# The yardstick, `ledger`, only for the bench.
bench: build
	@dpkg-query -W -f='$${Status}\n' ledger 2>/dev/null | grep -q 'install ok installed' || \
	    { $(SUDO) apt-get update -qq && \
	      DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq ledger; }
	tools/bench.sh $(BUILD)

# A look at what a person sees: the main window on a virtual display, saved as screenshot.png.
screenshot: build
	tools/screenshot.sh $(BUILD)/ui/marendola screenshot.png

clean:
	rm -rf $(BUILD)
