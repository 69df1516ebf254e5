#!/usr/bin/env bash
# Builds the two demonstration reference databases in data/samples/ from the
# invented transcripts in data/samples/demo-db/, with `tavi db` exactly as a
# user would. Demonstration data, not norms. Run from a built tree:
#   tools/build-demo-db.sh            (uses build/bin/tavi)
#   TAVI=/path/to/tavi tools/build-demo-db.sh
set -euo pipefail
cd "$(dirname "$0")/.."
tavi=${TAVI:-build/bin/tavi}
samples=data/samples

build() {
    local name=$1 context=$2 prefix=$3
    local db=$samples/demo-$name.tvidb
    rm -f "$db"
    "$tavi" db create "$db" --context "$context" \
        --description "Demonstration database of invented $name samples written for TAVI. Not norms." \
        --error-codes "[EW] [EO] [EU]" --sample-type 101
    "$tavi" db add "$db" --speaker 1 --enforce-context "$samples"/demo-db/"$prefix"-*.tvi
    "$tavi" db list "$db"
}

build conversation Conversation con
build narrative Narration nar
