#!/usr/bin/env bash
# Sets TAVI up on a fresh Debian 12 machine and runs the main job on the
# bundled sample transcripts: checks them, then prints the Standard Measures
# Report of one sample and writes it as a PDF file.
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

sample=data/samples/story-age7.tvi
pdf=build/story-age7-standard-measures.pdf
echo
echo "== tavi report smr $sample"
build/bin/tavi report smr "$sample"
build/bin/tavi report smr -o "$pdf" "$sample"
echo
echo "== the same report as PDF: $pdf"
