// A section of a transcript between "@begin" and "@end" lines.
#pragma once

namespace tavi {

struct atbeginend {
    int begin = 0; // line of "@begin" (or of the first utterance when an "@end" has none)
    int end = 0;   // line of "@end"; 0 while the section is open
};

} // namespace tavi
