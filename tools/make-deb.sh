#!/usr/bin/env bash
# Builds the Debian package tavi_<version>_<arch>.deb from a build tree
# (default: build/, configured with `cmake --preset ci` or `default`) and
# prints its path. The package installs under /usr with TAVI_SYS.ini as a
# conffile in /etc/tavi/; its Depends are computed by dpkg-shlibdeps
# (Debian package dpkg-dev).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
if [ ! -f "$build/CPackConfig.cmake" ]; then
  echo "make-deb: $build is not a configured build tree (cmake --preset ci)" >&2
  exit 2
fi
cmake --build "$build" -j"$(nproc)" >/dev/null
(cd "$build" && cpack -G DEB >/dev/null)
ls -t "$build"/tavi_*.deb | head -n 1
