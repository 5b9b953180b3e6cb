# Shared by the run and test scripts: packages, configure, build.
set -euo pipefail

QUILLON_SRC="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
QUILLON_BUILD="${QUILLON_BUILD:-$QUILLON_SRC/build}"

QUILLON_PACKAGES=(
  build-essential cmake ninja-build pkg-config
  libgtest-dev libbenchmark-dev
  qt6-base-dev qt6-charts-dev libqt6opengl6-dev libqt6sql6-sqlite
  fonts-dejavu-core poppler-utils
)

# Install whatever Debian packages are missing (root, or through sudo).
quillon_install_packages() {
  local missing=()
  local p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

quillon_build() {
  cmake -S "$QUILLON_SRC" -B "$QUILLON_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
  cmake --build "$QUILLON_BUILD" -j "$(nproc)"
}

# The suite built with the sanitizers in a build directory of its own, and run: any report ends
# the test that met it with a failure.  The options are set before building too, since the build
# runs the generator tool and lists the tests by running their programs.
quillon_sanitizer_environment() {
  local supp="$QUILLON_SRC/scripts/sanitizers"
  export ASAN_OPTIONS="halt_on_error=1:abort_on_error=0:detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1:suppressions=$supp/asan.supp"
  export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1:suppressions=$supp/ubsan.supp"
  export LSAN_OPTIONS="suppressions=$supp/lsan.supp:print_suppressions=0"
}

quillon_sanitizer_tests() {
  local build="${QUILLON_SANITIZE_BUILD:-$QUILLON_SRC/build-asan}"
  quillon_sanitizer_environment
  export QT_QPA_PLATFORM=offscreen
  QUILLON_BUILD="$build" quillon_build -DQUILLON_BUILD_TESTS=ON -DQUILLON_BUILD_BENCH=OFF -DQUILLON_SANITIZE=ON
  (cd "$build" && ctest --output-on-failure -j "$(nproc)" --timeout 600)
}
