// Brown's stage and the expected age range, from MLU in morphemes.
#pragma once

#include "analysis/value.h"

namespace tavi {

// MLUm rounded half up to two decimals, in hundredths: 1.496 -> 150.
int roundedHundredths(double mlum);
// Index 0 to 8 into the bound table 0.0, 1.0, 1.5, ... 4.5.
int brownStageIndex(double mlum);
// "Early I" ... "Post V"; missing below 1.0.
Value brownStage(double mlum);
// "%d - %d", "%d - --" (Post V), or missing below 1.0.
Value expectedAgeRange(double mlum);

} // namespace tavi
