// The one place a labelled line becomes its printed text.
#include "reports/report.h"

namespace tavi {

std::string LabelledLine::text() const {
    if (label.empty())
        return prefix + value;
    return prefix + label + gap + value;
}

} // namespace tavi
