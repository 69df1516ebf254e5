// The database and reports folders sit side by side above the session: the
// database layer must not see the reports.
#include "reports/report.h"

int layerProbe() {
    return 0;
}
