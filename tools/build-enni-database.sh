#!/usr/bin/env bash
# Builds a reference database of the ENNI corpus's typically developing
# children (story retells, ages 4-9) with `tavi import-chat` and `tavi db`,
# exactly as a user would. The corpus is read from ../shared/corpora/enni
# beside the project (or $ENNI); it is never copied into the project, and
# the database is built, not shipped (licence CC BY-NC-SA: cite
# Schneider, Dube & Hayward (2005), doi:10.21415/T51G7V, in any report).
#   tools/build-enni-database.sh DIR            (uses build/bin/tavi)
#   TAVI=/path/to/tavi ENNI=/path/to/enni tools/build-enni-database.sh DIR
# Writes DIR/enni-td.tvidb; the imported transcripts stay in DIR/enni-td/.
set -euo pipefail
if [[ $# -ne 1 ]]; then
    echo "usage: $0 DIR" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")/.." && pwd)
tavi=${TAVI:-$here/build/bin/tavi}
enni=${ENNI:-$here/../shared/corpora/enni}
if [[ ! -f $enni/groups.tsv ]]; then
    echo "$0: the ENNI corpus is not at $enni (set ENNI=...)" >&2
    exit 2
fi
# Absolute, because the import runs inside the corpus folder: a relative DIR
# would otherwise put the imported transcripts there.
mkdir -p "$1"
out=$(cd "$1" && pwd)
db=$out/enni-td.tvidb
transcripts=$out/enni-td

# The typically developing children: group TD in groups.tsv (file, group, age, @ID group).
mapfile -t files < <(awk -F'\t' 'NR > 1 && $2 == "TD" { print $1 }' "$enni/groups.tsv")
echo "Importing ${#files[@]} typically developing children's files" >&2
rm -rf "$transcripts"
(cd "$enni" && "$tavi" import-chat --out-dir "$transcripts" "${files[@]}") 2>"$out/enni-td-import.log"

rm -f "$db"
"$tavi" db create "$db" --context Narration \
    --description "ENNI typically developing children, story retells (Schneider, Dube & Hayward 2005, doi:10.21415/T51G7V), imported from CHAT" \
    --error-codes "[EW] [EO] [EU]" --sample-type 101
mapfile -t imported < <(find "$transcripts" -name '*.tvi' | sort)
"$tavi" db add "$db" --speaker 1 --enforce-context "${imported[@]}" >"$out/enni-td-add.log"
tail -n 3 "$out/enni-td-add.log"
"$tavi" db list "$db"
