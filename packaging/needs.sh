#!/usr/bin/env bash
# What the project needs of a Debian 12 machine, and how it gets there. Sourced by run, test and .ci/run.

NEEDS_BUILD="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev libgl-dev libsqlite3-dev libzip-dev liborcus-dev libixion-dev
librsvg2-dev libcairo2-dev libpugixml-dev zlib1g-dev libgtest-dev libgmock-dev fonts-dejavu-core"
NEEDS_LINT="clang-format clang-tidy cppcheck libbenchmark-dev python3 dpkg-dev file"

# What one checkout compiled serves the next: the cache looks at paths below the checkout only.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
# Without these it takes no file that is compiled with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

# install_needs PACKAGE...: installs what is missing, as root or through sudo; otherwise prints the command and stops.
install_needs() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        if command -v sudo >/dev/null && sudo -n true 2>/dev/null || { [ -t 0 ] && command -v sudo >/dev/null; }; then
            as_root=(sudo)
        else
            echo "Some packages are missing. Install them, then start again:" >&2
            echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
    fi
    echo "Installing ${missing[*]} ..." >&2
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null 2>&1 ||
        { "${apt[@]}" update >/dev/null && "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null; } || {
        echo "The installation failed. Try it by hand:" >&2
        echo "    apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    }
}

# build_preset PRESET TARGET...: configures once, then builds; silent when there is nothing to do.
build_preset() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if [ ! -f "build/$preset/build.ninja" ]; then
        echo "Configuring ($preset) ..." >&2
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; exit 1; }
    fi
    if ! ninja -C "build/$preset" -n "$@" 2>/dev/null | grep -q 'no work to do'; then
        echo "Building ($preset) ..." >&2
        ninja -C "build/$preset" "$@" >"$log" 2>&1 || { grep -vE '^\[[0-9]+/[0-9]+\]' "$log" | tail -80 >&2; rm -f "$log"; exit 1; }
    fi
    rm -f "$log"
}
