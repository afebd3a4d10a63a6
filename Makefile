# Two commands open the README: `make run` and `make test`. Both install what is missing first.
SHELL := /bin/bash
JOBS ?= $(shell nproc)
BUILD := build
ASAN := build/asan
DEBS := g++ cmake make libgtest-dev libgmock-dev qt6-base-dev qt6-tools-dev libqt6uitools6 \
        qt6-qpa-plugins libgl1-mesa-dev fonts-liberation xvfb xauth imagemagick \
        poppler-utils
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
# A compiler cache, where the developer has one, makes rebuilds of other checkouts cheap.
LAUNCHER := $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

.PHONY: deps build run test bench clean screenshot

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
test: build
	cmake -S . -B $(ASAN) $(LAUNCHER) -DCMAKE_BUILD_TYPE=Debug -DMARENDOLA_SANITIZE=ON -DMARENDOLA_QT=OFF >/dev/null
	cmake --build $(ASAN) -j $(JOBS)
	cd $(ASAN) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

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
