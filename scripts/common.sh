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
