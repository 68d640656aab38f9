# shellcheck shell=bash
# What the scripts share: the Debian packages they need, and how they build. Sourced, not run.
set -euo pipefail

SourceFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The names of files are UTF-8; a new system may have no locale at all.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

# shellcheck disable=SC2034 # used by the scripts that source this file
{
    Program=$SourceFolder/build/release/app/ksm
    # Versions of clang-format and clang-tidy disagree; this one is in Debian 12 and 13.
    ClangVersion=19
    FontPackages=(fontconfig fonts-liberation fonts-comic-neue)
    BuildPackages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgtest-dev)
    DisplayPackages=(xvfb openbox xdotool imagemagick)
    MeasurePackages=(libbenchmark-dev)
    FuzzPackages=(clang libclang-rt-dev)
    LintPackages=("clang-format-$ClangVersion" "clang-tidy-$ClangVersion" shellcheck flake8)
    PackagePackages=(dpkg-dev file gzip lintian desktop-file-utils appstream man-db groff mandoc)
}

# Install PACKAGE...: installs those of the packages that are missing, where that can be done.
Install() {
    local installed package missing=() asRoot=()
    CanInstall || return 0
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

CanInstall() {
    type -P apt-get >/dev/null && { ((EUID == 0)) || type -P sudo >/dev/null; }
}

# Configure PRESET [OPTION...]: configures one of the CMake presets. A warning that nobody has seen
# yet, since the compiler is a newer one, stops the build only with KSM_WARNINGS=errors.
Configure() (
    cd "$SourceFolder"
    [[ ${KSM_WARNINGS-} == errors ]] || set -- "$@" --compile-no-warning-as-error
    cmake --preset "$1" --log-level=NOTICE "${@:2}" || ExplainMissing
)

# Says what has to be there, where the scripts cannot install it.
ExplainMissing() {
    CanInstall || cat >&2 <<'END'

Nothing can be installed here: that takes apt-get, and root or sudo. What has to be there:
  to build:           CMake 3.25 and Ninja, a compiler for C++20, GoogleTest,
                      Qt 6.4 or newer with Widgets, Svg and Test
  to run:             the fonts Liberation Sans and Comic Neue
  without a display:  Xvfb, openbox, xdotool, ImageMagick
END
    return 1
}

# Build PRESET [TARGET...]: configures and builds one of the CMake presets.
Build() (
    Configure "$1"
    cd "$SourceFolder"
    cmake --build --preset "$1" ${2:+--target "${@:2}"}
)
