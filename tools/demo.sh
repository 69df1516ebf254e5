#!/usr/bin/env bash
# Sets TAVI up on a fresh Debian 12 machine and runs the main job on the
# bundled sample transcripts.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "$(id -u)" = 0 ]; then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends $(cat .ci/packages) >/dev/null
fi

cmake --preset default >/dev/null
cmake --build --preset default -j"$(nproc)" >/dev/null

echo "== tavi check data/samples/*.tvi"
build/bin/tavi check data/samples/*.tvi
