// Compiled once for a layer that may see the analysis folder (it must build)
// and once for the transcript layer below it (it must not).
#include "analysis/measures.h"

int layerProbe() {
    return tavi::kDefaultWindow;
}
