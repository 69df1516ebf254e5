#!/usr/bin/env python3
"""Generates TAVI's grammatical-category dictionary and verb list from WordNet.

Why: the grammatical-category analysis looks every word up in
data/GC/GCDictionaryFile.txt, and the verb measures read data/verbs.txt. Both
are derived here from WordNet 3.0 (Debian package wordnet-base) plus the
closed-class lists written below, so that the files can be rebuilt and checked.
The generated files are committed; a build never runs this script.

    apt-get install wordnet-base          # provides /usr/share/wordnet/
    python3 tools/gen_gc_dictionary.py    # rewrites data/GC/GCDictionaryFile.txt and data/verbs.txt

Dictionary lines: `word [GC:CODE] [GC:CODE] ...`, keys in lower case (except
"I"), one line per word form, most likely category first, lines sorted by key.
Open-class words (nouns, verbs, adjectives, adverbs) come from WordNet's index
files with regular inflections made by rule and irregular ones from the
exception lists (noun.exc, verb.exc, adj.exc). A category is ranked by the
number of tagged occurrences of the word's senses in that part of speech
(cntlist.rev); a category whose count is below a tenth of the word's best one
is left out, so that "dog" is a noun and not also a verb. Closed-class words
(determiners, pronouns, auxiliaries, prepositions, conjunctions...) come only
from the lists below, which replace whatever WordNet says about them: WordNet
knows "a" and "I" as nouns, which would count every article as a noun.

The output is deterministic: the same WordNet files give the same bytes.
"""

import argparse
import os
import re
import sys
from collections import defaultdict

# Closed-class words, each with its categories in order of likelihood. A word
# listed here takes exactly these categories; WordNet is not consulted for it.
CLOSED = """
a DET
an DET
the DET
this DET OPRON
that OPRON DET SUB
these DET OPRON
those DET OPRON
every DET
each DET OPRON
either DET OPRON COORD
neither DET OPRON NEG COORD
another DET OPRON
other DET ADJ OPRON
such DET
all DET OPRON
both DET OPRON
some DET OPRON
any DET OPRON
no NEG DET INTJ
few DET OPRON
many DET OPRON
much DET OPRON AVERB
several DET OPRON
enough DET OPRON AVERB
more DET OPRON AVERB
most DET OPRON AVERB
less DET OPRON AVERB
least DET OPRON AVERB
lots OPRON
half DET NOUN
I PPRON
me PPRON
you PPRON
ya PPRON INTJ
he PPRON
him PPRON
she PPRON
her PPRON POSS
it PPRON
we PPRON
us PPRON
they PPRON
them PPRON
y'all PPRON
myself OPRON
yourself OPRON
himself OPRON
herself OPRON
itself OPRON
ourselves OPRON
yourselves OPRON
themselves OPRON
oneself OPRON
hisself OPRON
theirselves OPRON
somebody OPRON
someone OPRON
something OPRON
anybody OPRON
anyone OPRON
anything OPRON
everybody OPRON
everyone OPRON
everything OPRON
nobody OPRON NEG
nothing OPRON NEG
none OPRON NEG
one OPRON NOUN ADJ
ones OPRON
whoever OPRON
whomever OPRON
my POSS
your POSS
his POSS
its POSS
our POSS
their POSS
mine POSS
yours POSS
hers POSS
ours POSS
theirs POSS
can AXMOD
could AXMOD
may AXMOD
might AXMOD
must AXMOD
shall AXMOD
should AXMOD
will AXMOD
would AXMOD
ought AXMOD
cannot AXMOD NEG
gonna AXMOD
gotta AXMOD
hafta AXMOD
hasta AXMOD
oughta AXMOD
wanna VERB
am COP AXOP
is COP AXOP
are COP AXOP
was COP AXOP
were COP AXOP
be COP AXOP
been COP AXOP
being COP AXOP
have VERB AXOP
has VERB AXOP
had VERB AXOP
having VERB AXOP
do AXOP VERB
does AXOP VERB
did AXOP VERB
doing VERB
done VERB ADJ
ain't AXOP NEG
don't AXOP NEG
doesn't AXOP NEG
didn't AXOP NEG
isn't COP NEG
aren't COP NEG
wasn't COP NEG
weren't COP NEG
hasn't AXOP NEG
haven't AXOP NEG
hadn't AXOP NEG
can't AXMOD NEG
couldn't AXMOD NEG
won't AXMOD NEG
wouldn't AXMOD NEG
shouldn't AXMOD NEG
mustn't AXMOD NEG
mightn't AXMOD NEG
shan't AXMOD NEG
needn't AXMOD NEG
not NEG
never NEG AVERB
nowhere NEG AVERB
nor COORD NEG
let's LET
lets VERB
let VERB LET
to INFIN PREP
there EXIST AVERB
what QUES DET OPRON
where QUES SUB
when SUB QUES
who QUES OPRON
whom QUES OPRON
whose QUES POSS
why QUES
which QUES DET OPRON
how QUES
whatever OPRON DET
whichever OPRON DET
wherever SUB
whenever SUB
however AVERB QUES
and COORD
but COORD PREP
or COORD
yet COORD AVERB
plus COORD PREP
so COORD INTEN INIT AVERB
then AVERB
because SUB
cause SUB NOUN VERB
cuz SUB
cos SUB
if SUB
unless SUB
although SUB
though SUB AVERB
while SUB
whereas SUB
whether SUB
than SUB PREP
since SUB PREP
until SUB PREP
till SUB PREP
before SUB PREP AVERB
after PREP SUB AVERB
once SUB AVERB
as SUB PREP
about PREP AVERB VPART
above PREP AVERB
across PREP VPART
against PREP
along PREP VPART
among PREP
around PREP VPART AVERB
at PREP
behind PREP AVERB
below PREP AVERB
beneath PREP
beside PREP
besides PREP AVERB
between PREP
beyond PREP
by PREP VPART
despite PREP
during PREP
except PREP
for PREP
from PREP
in PREP VPART
inside PREP AVERB NOUN
into PREP
like VERB PREP SUB
near PREP ADJ
of PREP
onto PREP
on PREP VPART
outside PREP AVERB NOUN
over PREP VPART
past PREP ADJ NOUN
per PREP
through PREP VPART
throughout PREP
toward PREP
towards PREP
under PREP
underneath PREP
unlike PREP
upon PREP
via PREP
with PREP
within PREP
without PREP
up VPART PREP
down VPART PREP
out VPART PREP
off VPART PREP
away VPART AVERB
back VPART AVERB NOUN
apart VPART AVERB
aside VPART AVERB
forward VPART AVERB
home NOUN AVERB
very INTEN
really INTEN AVERB
too INTEN AVERB
quite INTEN
pretty INTEN ADJ
super INTEN
extremely INTEN
totally INTEN
completely INTEN
absolutely INTEN
incredibly INTEN
awfully INTEN
terribly INTEN
rather INTEN
fairly INTEN
somewhat INTEN
real INTEN ADJ
oh INTJ INIT
well INIT AVERB ADJ
okay INIT INTJ ADJ
ok INIT INTJ ADJ
alright INIT INTJ ADJ
hey INTJ INIT
now AVERB INIT
anyway INIT AVERB
anyways INIT AVERB
yes INTJ
yeah INTJ
yep INTJ
yup INTJ
nope INTJ NEG
nah INTJ NEG
mhm INTJ
uhhuh INTJ
uhuh INTJ NEG
hi INTJ
hello INTJ
bye INTJ
goodbye INTJ
please INTJ VERB
thanks INTJ NOUN
wow INTJ
whoa INTJ
ouch INTJ
ow INTJ
oops INTJ
uhoh INTJ
yay INTJ
hooray INTJ
yikes INTJ
yuck INTJ
yum INTJ
yummy ADJ INTJ
ew INTJ
eww INTJ
shh INTJ
huh INTJ
aw INTJ
ah INTJ
ooh INTJ
oh INTJ
um INTJ
uh INTJ
er INTJ
erm INTJ
uhm INTJ
hm INTJ
hmm INTJ
mm INTJ
eh INTJ
"""

WORD_RE = re.compile(r"^[a-z][a-z']*$")
POS_CODE = {"n": "NOUN", "v": "VERB", "a": "ADJ", "s": "ADJ", "r": "AVERB"}
SS_TYPE_POS = {"1": "n", "2": "v", "3": "a", "4": "r", "5": "a"}
KEEP_RATIO = 0.1  # a category needs a tenth of the word's best count

# WordNet's tagged counts come from adult texts, where "bear" is mostly a verb.
# Children talk about bears: these words are nouns first in their speech.
NOUN_FIRST = {"bear", "duck", "crow", "bat", "seal", "squash", "pepper", "pooch", "nail", "train",
              "present"}

# Open-class words children use that WordNet lacks or lists only with a capital.
EXTRA_OPEN = """
else AVERB
crunchy ADJ
superhero NOUN
superheroes NOUN
sandcastle NOUN
sandcastles NOUN
backflip NOUN
backflips NOUN
bandaid NOUN
bandaids NOUN
babysit VERB
babysits VERB
babysat VERB
babysitting VERB
horsie NOUN
horsies NOUN
doggie NOUN
doggies NOUN
kitty NOUN
kitties NOUN
binky NOUN
boohoo INTJ
phew INTJ
monday NOUN
tuesday NOUN
wednesday NOUN
thursday NOUN
friday NOUN
saturday NOUN
sunday NOUN
mondays NOUN
tuesdays NOUN
wednesdays NOUN
thursdays NOUN
fridays NOUN
saturdays NOUN
sundays NOUN
january NOUN
february NOUN
april NOUN
june NOUN
july NOUN
september NOUN
october NOUN
november NOUN
december NOUN
christmas NOUN
halloween NOUN
easter NOUN
thanksgiving NOUN
"""

# The unintelligible marks are never words.
NEVER_KEYS = {"x", "xx", "xxx"}


def parse_closed(table):
    closed = {}
    for line in table.strip().splitlines():
        word, *codes = line.split()
        if word in closed:
            continue  # the first listing of a word wins
        closed[word] = codes
    return closed


def read_index(wn, pos):
    """Single-word lemmas of one part of speech with their synset counts."""
    lemmas = {}
    with open(os.path.join(wn, "index." + pos), encoding="latin-1") as f:
        for line in f:
            if line.startswith(" "):
                continue  # licence header
            fields = line.split()
            if WORD_RE.match(fields[0]):
                lemmas[fields[0]] = int(fields[2])
    return lemmas


def read_counts(wn):
    """Tagged-occurrence counts per (lemma, part of speech) from cntlist.rev."""
    counts = defaultdict(int)
    with open(os.path.join(wn, "cntlist.rev"), encoding="latin-1") as f:
        for line in f:
            key, _sense, count = line.split()
            lemma, rest = key.split("%", 1)
            pos = SS_TYPE_POS[rest[0]]
            counts[(lemma, "a" if pos == "s" else pos)] += int(count)
    return counts


def read_exceptions(wn, pos):
    """Irregular forms: base lemma -> list of inflected forms."""
    forms = defaultdict(list)
    with open(os.path.join(wn, pos + ".exc"), encoding="latin-1") as f:
        for line in f:
            fields = line.split()
            if len(fields) < 2:
                continue
            form = fields[0]
            for base in fields[1:]:
                if WORD_RE.match(form) and WORD_RE.match(base) and form != base:
                    forms[base].append(form)
    return forms


def proper_nouns(wn):
    """Noun lemmas that WordNet only ever spells with a capital letter."""
    lower, capital = set(), set()
    with open(os.path.join(wn, "data.noun"), encoding="latin-1") as f:
        for line in f:
            if line.startswith(" "):
                continue
            fields = line.split()
            count = int(fields[3], 16)
            for i in range(count):
                word = re.sub(r"\(.*\)$", "", fields[4 + 2 * i])
                (capital if word != word.lower() else lower).add(word.lower())
    return capital - lower


VOWELS = "aeiou"


def doubles_final(word):
    """One-syllable consonant-vowel-consonant words double their last letter (stop -> stopped)."""
    return re.match(r"^[^aeiou]*(qu)?[aeiou][^aeiouwxy]$", word) is not None


def plural_s(word):
    if re.search(r"(s|x|z|ch|sh)$", word):
        return word + "es"
    if re.search(r"[^aeiou]y$", word):
        return word[:-1] + "ies"
    return word + "s"


def third_person(word):
    if re.search(r"[^aeiou]o$", word):
        return word + "es"
    return plural_s(word)


def past_ed(word):
    if word.endswith("e"):
        return word + "d"
    if re.search(r"[^aeiou]y$", word):
        return word[:-1] + "ied"
    if word.endswith("c"):
        return word + "ked"
    if doubles_final(word):
        return word + word[-1] + "ed"
    return word + "ed"


def present_ing(word):
    if word.endswith("ie"):
        return word[:-2] + "ying"
    if word.endswith("e") and not re.search(r"(ee|oe|ye)$", word) and len(word) > 2:
        return word[:-1] + "ing"
    if word.endswith("c"):
        return word + "king"
    if doubles_final(word):
        return word + word[-1] + "ing"
    return word + "ing"


def comparative(word, suffix):
    if word.endswith("e"):
        return word + suffix[1:]
    if re.search(r"[^aeiou]y$", word):
        return word[:-1] + "i" + suffix
    if doubles_final(word):
        return word + word[-1] + suffix
    return word + suffix


def syllables(word):
    return len(re.findall(r"[aeiouy]+", word))


def verb_forms(lemma, irregular):
    forms = {lemma}
    irr = [f for f in irregular.get(lemma, [])]
    forms.update(irr)
    if not any(f.endswith("s") and not f.endswith("ss") for f in irr):
        forms.add(third_person(lemma))
    if not any(not f.endswith("ing") and not f.endswith("s") for f in irr):
        forms.add(past_ed(lemma))
    if not any(f.endswith("ing") for f in irr):
        forms.add(present_ing(lemma))
    return forms


def noun_forms(lemma, irregular):
    forms = {lemma}
    irr = irregular.get(lemma, [])
    forms.update(irr)
    # noun.exc also maps gerunds to nouns ("crying cry"); only a listed plural replaces the regular one
    if not any(not f.endswith(("ing", "ings")) for f in irr) and not lemma.endswith("'s"):
        forms.add(plural_s(lemma))
    return forms


def adjective_forms(lemma, irregular):
    forms = {lemma}
    if irregular.get(lemma):
        forms.update(irregular[lemma])
    elif syllables(lemma) == 1 or (syllables(lemma) == 2 and lemma.endswith("y")):
        if not re.search(r"(ed|ing|ful|ous|ic|al|ish)$", lemma):
            forms.add(comparative(lemma, "er"))
            forms.add(comparative(lemma, "est"))
    return forms


def build(wn):
    closed = parse_closed(CLOSED)
    closed_lower = {w.lower() for w in closed}  # keeps WordNet's "i" (iodine) from shadowing "I"
    extra = {w: c for w, c in parse_closed(EXTRA_OPEN).items() if w not in closed}
    counts = read_counts(wn)
    proper = proper_nouns(wn)
    irregular = {pos: read_exceptions(wn, pos) for pos in ("noun", "verb", "adj")}
    # Score of each part of speech of each lemma: tagged count, synset count as tie-break.
    lemma_score = {}
    for pos, name in (("n", "noun"), ("v", "verb"), ("a", "adj"), ("r", "adv")):
        for lemma, synsets in read_index(wn, name).items():
            if pos == "n" and lemma in proper:
                continue
            lemma_score[(lemma, pos)] = (counts.get((lemma, pos), 0), synsets)
    best = defaultdict(lambda: (0, 0))
    for (lemma, pos), score in lemma_score.items():
        best[lemma] = max(best[lemma], score)
    for lemma in sorted(NOUN_FIRST):
        best[lemma] = lemma_score[(lemma, "n")] = (best[lemma][0] + 1, best[lemma][1])
    # Keep the categories that are not rare for their lemma.
    kept = {}
    for (lemma, pos), score in lemma_score.items():
        top = best[lemma][0]
        if top == 0 or score[0] >= max(1, KEEP_RATIO * top):
            kept[(lemma, pos)] = score
    # Spread each kept category over the lemma's forms.
    entries = defaultdict(dict)  # form -> code -> best score
    verbs = set()
    for (lemma, pos), score in sorted(kept.items()):
        if pos == "n":
            forms = noun_forms(lemma, irregular["noun"])
        elif pos == "v":
            forms = verb_forms(lemma, irregular["verb"])
            verbs.update(f for f in forms if f not in closed)
        elif pos == "a":
            forms = adjective_forms(lemma, irregular["adj"])
        else:
            forms = {lemma}
        code = POS_CODE[pos]
        for form in forms:
            if form in closed or form in closed_lower or form in NEVER_KEYS:
                continue
            if score > entries[form].get(code, (-1, -1)):
                entries[form][code] = score
    ordered = {}
    for form, codes in entries.items():
        ordered[form] = sorted(codes, key=lambda c: (-codes[c][0], -codes[c][1], c))
    for word, codes in extra.items():
        ordered[word] = codes + [c for c in ordered.get(word, []) if c not in codes]
    lines = list(ordered.items())
    for word, codes in closed.items():
        lines.append((word, codes))
    # be, have and do forms count as verbs wherever they stand; modals do not
    verbs.update(w for w, codes in closed.items() if {"VERB", "COP", "AXOP"} & set(codes))
    lines.sort(key=lambda item: (item[0].lower(), item[0]))
    return lines, sorted(verbs)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--wordnet", default="/usr/share/wordnet", help="WordNet dictionary folder")
    parser.add_argument("--data", default=os.path.join(here, "..", "data"), help="TAVI data folder")
    args = parser.parse_args()
    if not os.path.exists(os.path.join(args.wordnet, "index.noun")):
        sys.exit("WordNet not found in %s (apt-get install wordnet-base)" % args.wordnet)
    lines, verbs = build(args.wordnet)
    gc_dir = os.path.join(args.data, "GC")
    os.makedirs(gc_dir, exist_ok=True)
    write(os.path.join(gc_dir, "GCDictionaryFile.txt"),
          "".join("%s %s\n" % (w, " ".join("[GC:%s]" % c for c in codes)) for w, codes in lines))
    write(os.path.join(args.data, "verbs.txt"), "".join(v + "\n" for v in verbs))
    print("%d dictionary lines, %d verb forms" % (len(lines), len(verbs)))


def write(path, text):
    tmp = path + ".tmp"
    with open(tmp, "w", encoding="utf-8", newline="\n") as f:
        f.write(text)
    os.replace(tmp, path)


if __name__ == "__main__":
    main()
