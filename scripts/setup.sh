# shellcheck shell=bash
# What the scripts share: the Debian packages they need, and how they build. Sourced, not run.
set -euo pipefail

SourceFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# shellcheck disable=SC2034 # used by the scripts that source this file
{
    Program=$SourceFolder/build/release/app/ksm
    FontPackages=(fontconfig fonts-liberation fonts-comic-neue)
    BuildPackages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgtest-dev)
    DisplayPackages=(xvfb openbox xdotool imagemagick)
    MeasurePackages=(libbenchmark-dev)
    FuzzPackages=(clang libclang-rt-14-dev)
    LintPackages=(clang-format clang-tidy shellcheck flake8)
    PackagePackages=(dpkg-dev file gzip lintian desktop-file-utils appstream man-db groff mandoc)
}

# Install PACKAGE...: installs those of the packages that are missing.
Install() {
    local installed package missing=() asRoot=()
    installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package; do
        grep --quiet --line-regexp --fixed-strings "$package installed" <<<"$installed" ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    echo "Installing ${missing[*]}"
    ((EUID == 0)) || asRoot=(sudo)
    "${asRoot[@]}" apt-get --quiet=2 update || echo "The package lists are not fresh; trying all the same."
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get --quiet=2 --yes --no-install-recommends -o Dpkg::Use-Pty=0 install "${missing[@]}" >/dev/null
}

# Configure PRESET: configures one of the CMake presets.
Configure() (
    cd "$SourceFolder"
    cmake --preset "$1" --log-level=NOTICE
)

# Build PRESET [TARGET...]: configures and builds one of the CMake presets.
Build() (
    Configure "$1"
    cd "$SourceFolder"
    cmake --build --preset "$1" ${2:+--target "${@:2}"}
)
