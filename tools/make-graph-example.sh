#!/usr/bin/env bash
# Draws the example normative graph of the documentation: the bundled
# conversation sample's MLU in words among every sample of the demonstration
# conversation database. Run from a built tree:
#   tools/make-graph-example.sh            (uses build/bin/tavi)
#   TAVI=/path/to/tavi tools/make-graph-example.sh
set -euo pipefail
cd "$(dirname "$0")/.."
tavi=${TAVI:-build/bin/tavi}
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} "$tavi" --settings-dir "$settings" graph MLUw \
    --db data/samples/demo-conversation.tvidb --age-range 2-15 --equate none \
    -o docs/screenshots/normative-graph.png data/samples/conversation-age5.tvi
echo "docs/screenshots/normative-graph.png"
